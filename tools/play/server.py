"""A web server for the page."""

import functools
import http.server
import sys
import threading


class Server(http.server.ThreadingHTTPServer):
    """Serves a folder below /some/where/ of a free port, with additional headers."""

    def __init__(self, folder, headers=()):
        class Handler(http.server.SimpleHTTPRequestHandler):
            def translate_path(self, path):
                return super().translate_path(path.removeprefix("/some/where"))

            def end_headers(self):
                for header in headers:
                    self.send_header(*header)
                super().end_headers()

            def log_message(self, *words):
                pass

        super().__init__(("127.0.0.1", 0), functools.partial(Handler, directory=folder))
        self.address = f"http://127.0.0.1:{self.server_port}/some/where/"
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def handle_error(self, *request):
        if not isinstance(sys.exc_info()[1], ConnectionError):  # a browser may hang up
            super().handle_error(*request)
