// Keeps one version of the page whole, so that it starts without a network: `kept`, set in front of this by the
// build, names the version and the files with their check sums. A new version is fetched beside the old one and
// taken up at the next start, once all of it is there; no start ever mixes two.
const { scope } = registration;
const family = `gloomdeck ${scope} `;
const own = family + kept.version;

// What the page has just loaded is not loaded again, unless it is another one than the check sum wants.
async function fetchOne(store, [name, integrity]) {
  const address = new URL(name, scope);
  const first = name === './' ? 'no-cache' : 'force-cache';
  const load = cache => fetch(address, { integrity, cache });
  const got = await load(first).catch(() => load('reload'));
  if (!got.ok) throw new Error(`${address} answers ${got.status}`);
  await store.put(address, got);
}

async function fetchAll() {
  const cache = await caches.open(own);
  await Promise.all(Object.entries(kept.files).map(file => fetchOne(cache, file)));
}

async function forgetOthers() {
  const names = await caches.keys();
  await Promise.all(names.filter(name => name.startsWith(family) && name !== own).map(name => caches.delete(name)));
}

async function answer(address) {
  const cache = await caches.open(own);
  return await cache.match(address) ?? fetch(address);
}

addEventListener('install', event => {
  skipWaiting();
  event.waitUntil(fetchAll());
});

addEventListener('activate', event => event.waitUntil(forgetOthers()));

addEventListener('fetch', event => {
  const { pathname, search, href } = new URL(event.request.url);
  const root = new URL(scope).pathname;
  const isPage = pathname === root || pathname === `${root}index.html`;
  const version = new URLSearchParams(search).get('v');
  if (event.request.method !== 'GET') return;
  if (isPage) event.respondWith(answer(scope));
  else if (version === kept.version && href.startsWith(scope)) event.respondWith(answer(href));
  else if (version && href.startsWith(scope)) event.respondWith(Response.error());
});
