#!/usr/bin/env python3
"""Puts the page's folder together: stage_page.py PAGE MODULE ICONS FOLDER [ADDRESS].

PAGE has the page's own files, MODULE the game's module and its script, ICONS the icons and the preview. The names
that the page loads carry its version: a browser that has an older page's script must not start the newer game with
it. ADDRESS is where the page will be published; sites that show a preview of a link want the picture's whole address.
"""
import base64
import gzip
import hashlib
import pathlib
import re
import sys

loaded = (".js", ".css", ".pack")  # what a start loads, besides the page and its icon
icon = "icon.png"
worker = "sw.js"


def gather(page, module, icons):
    files = {path.name: path.read_bytes() for folder in (page, icons) for path in folder.iterdir()}
    files["gloomdeck.js"] = (module / "gloomdeck.js").read_bytes()
    files["gloomdeck.pack"] = gzip.compress((module / "gloomdeck.wasm").read_bytes(), 9, mtime=0)
    return files


def version_of(files):
    """Short, and another one as soon as anything of the page is another."""
    digest = hashlib.sha256()
    for name in sorted(files):
        digest.update(name.encode() + hashlib.sha256(files[name]).digest())
    return digest.hexdigest()[:10]


def is_loaded(name):
    return name == icon or (name != worker and name.endswith(loaded))


def name_versions(files, version):
    """The version behind the names of what is loaded, wherever these stand in quotes."""
    names = "|".join(re.escape(name) for name in files if is_loaded(name))
    for name in files:
        if name.endswith((".html", ".js")):
            text = re.sub(rf"""(["'])(\./)?({names})\1""", rf"\1\2\3?v={version}\1", files[name].decode())
            files[name] = text.encode()


def integrity(contents):
    return "sha256-" + base64.b64encode(hashlib.sha256(contents).digest()).decode()


def name_kept(files, version):
    """Tells the service worker what makes up this version."""
    kept = {f"{name}?v={version}": integrity(files[name]) for name in sorted(files) if is_loaded(name)}
    kept["./"] = integrity(files["index.html"])
    lines = "".join(f"  '{name}': '{check}',\n" for name, check in kept.items())
    files[worker] = f"const kept = {{ version: '{version}', files: {{\n{lines}}} }};\n".encode() + files[worker]


def write(files, folder):
    folder.mkdir(parents=True, exist_ok=True)
    for path in folder.iterdir():
        if path.name not in files:
            path.unlink()
    for name, contents in files.items():
        path = folder / name
        if not path.exists() or path.read_bytes() != contents:
            path.write_bytes(contents)


def main():
    page, module, icons, folder = map(pathlib.Path, sys.argv[1:5])
    files = gather(page, module, icons)
    if len(sys.argv) > 5:
        whole = sys.argv[5].rstrip("/") + "/preview.png"
        files["index.html"] = files["index.html"].replace(b'"preview.png"', f'"{whole}"'.encode())
    version = version_of(files)
    name_versions(files, version)
    name_kept(files, version)
    write(files, folder)


if __name__ == "__main__":
    try:
        main()
    except OSError as error:
        sys.exit(f"the page could not be put together: {error}")
