// What the page, its service worker, the module's library and the tests of the page are looked over with.
import js from '@eslint/js';

const browser = [
  'addEventListener', 'atob', 'btoa', 'caches', 'clearTimeout', 'console', 'devicePixelRatio', 'document',
  'fetch', 'history', 'indexedDB', 'innerWidth', 'localStorage', 'location', 'matchMedia', 'navigator',
  'performance', 'registration', 'scrollTo', 'scrollY', 'sessionStorage', 'setTimeout', 'skipWaiting', 'window',
  'AbortController', 'Blob', 'CompressionStream', 'DecompressionStream', 'ImageData', 'MessageChannel',
  'Request', 'Response', 'TextDecoder', 'TextEncoder', 'URL', 'URLSearchParams', 'WebAssembly',
  'CanvasRenderingContext2D', 'KeyboardEvent', 'getComputedStyle', 'innerHeight',
];
const node = ['process', 'Buffer', 'console', 'setTimeout', 'URL'];
const library = ['mergeInto', 'LibraryManager', 'Module', 'Asyncify', 'UTF8ToString', 'HEAPU8', 'HEAP32'];

const known = (...names) => Object.fromEntries(names.flat().map(name => [name, 'readonly']));

const rules = {
  'array-callback-return': 'error',
  'arrow-parens': ['error', 'as-needed'],
  'consistent-return': 'error',
  'eqeqeq': 'error',
  'max-len': ['error', { code: 120 }],
  'no-implicit-coercion': 'error',
  'no-shadow': 'error',
  'no-unused-vars': ['error', { caughtErrors: 'none' }],
  'no-use-before-define': ['error', { functions: false }],
  'no-var': 'error',
  'object-shorthand': 'error',
  'prefer-arrow-callback': 'error',
  'prefer-const': 'error',
  'prefer-destructuring': ['error', { object: true, array: false }],
  'prefer-template': 'error',
  'quotes': ['error', 'single', { avoidEscape: true, allowTemplateLiterals: false }],
  'semi': 'error',
};

export default [
  js.configs.recommended,
  { rules },
  { files: ['page/*.js'], languageOptions: { globals: known(browser) } },
  { files: ['page/sw.js'], languageOptions: { globals: known(browser, ['kept']) } },
  {
    // The first is as old as can be; the compiler reads the second by rules of its own.
    files: ['page/start.js', 'platform/*.js'],
    languageOptions: { sourceType: 'script', globals: known(browser, library) },
    rules: { 'no-var': 'off', 'object-shorthand': 'off', 'prefer-arrow-callback': 'off', 'prefer-template': 'off',
      'consistent-return': 'off' },
  },
  { files: ['tests/web/*.mjs', 'tools/lint/*.mjs'], languageOptions: { globals: known(browser, node) } },
];
