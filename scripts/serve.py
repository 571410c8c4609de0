#!/usr/bin/env python3
"""Serves a folder to this machine alone: serve.py FOLDER PORT (0 for any that is free)."""
import functools
import http.server
import sys


class Handler(http.server.SimpleHTTPRequestHandler):
    """Files as they are; the browser asks each time whether they have changed."""

    def end_headers(self):
        self.send_header("Cache-Control", "no-cache")
        super().end_headers()

    def handle(self):
        try:
            super().handle()
        except ConnectionError:
            print(f"{getattr(self, 'path', 'a request')} was broken off by the browser", file=sys.stderr, flush=True)

    def log_message(self, *_):
        """Who asks for what is of no interest here."""


def main():
    folder, port = sys.argv[1], int(sys.argv[2])
    try:
        server = http.server.ThreadingHTTPServer(("127.0.0.1", port), functools.partial(Handler, directory=folder))
    except OSError as error:
        sys.exit(f"port {port} cannot be served ({error.strerror}); another one: ./web --port N")
    print(f"http://127.0.0.1:{server.server_port}/", flush=True)
    try:
        server.serve_forever()
    except KeyboardInterrupt:
        pass


if __name__ == "__main__":
    main()
