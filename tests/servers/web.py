"""A web server for the tests, on this machine alone: web.py FOLDER [--tls CERTIFICATE KEY] [--six]
[moves [refuses]].

GET and PUT files of the folder; with "moves", MOVE and DELETE as well, as servers of shared folders do; with "refuses",
MOVE is offered and refused. A folder is answered with its index.html. A file NAME.answer beside a missing NAME is a
whole answer: its status line, its headers, an empty line and its body; the header "X-Endless: yes" repeats the body
without an end. A file .password in the folder holds "USER:PASSWORD", which everybody has to give then.
"""

import base64
import http.server
import os
import socket
import ssl
import sys
import time
import urllib.parse

from commands import Behaviour, listen

BEHAVIOUR = Behaviour()


class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    folder = "."

    def handle(self):
        time.sleep(BEHAVIOUR.slowly)
        super().handle()

    def log_message(self, *_):
        pass

    def path_on_disk(self, address=None):
        # As a proxy, the server is given whole addresses.
        path = urllib.parse.urlsplit(self.path if address is None else address).path.split(";")[0]
        parts = [part for part in urllib.parse.unquote(path).split("/") if part not in ("", ".", "..")]
        found = os.path.join(self.folder, *parts)
        return os.path.join(found, "index.html") if os.path.isdir(found) else found

    def is_allowed(self):
        try:
            with open(os.path.join(self.folder, ".password"), encoding="utf-8") as file:
                wanted = "Basic " + base64.b64encode(file.read().strip().encode()).decode()
        except OSError:
            return True
        if self.headers.get("Authorization") == wanted:
            return True
        self.answer(401, b"who are you?", {"WWW-Authenticate": 'Basic realm="test"'})
        return False

    def answer(self, status, body, headers=None):
        self.send_response(status)
        for name, value in (headers or {}).items():
            self.send_header(name, value)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def send_file(self, path):
        size = os.path.getsize(path)
        self.send_response(200)
        if path.endswith(".png"):
            self.send_header("Content-Type", "image/png")
        else:
            self.send_header("Content-Type", "text/html")
        self.send_header("Content-Length", str(size))
        self.end_headers()
        with open(path, "rb") as file:
            if BEHAVIOUR.cut is None:
                self.connection.sendfile(file) if not isinstance(self.connection, ssl.SSLSocket) else self.wfile.write(file.read())
            else:
                self.wfile.write(file.read(BEHAVIOUR.cut))
                self.close_connection = True
                self.wfile.flush()
                self.connection.shutdown(socket.SHUT_RDWR)

    def send_prepared(self, path):
        with open(path, "rb") as file:
            head, _, body = file.read().replace(b"\r\n", b"\n").partition(b"\n\n")
        lines = head.decode("utf-8").split("\n")
        endless = "X-Endless: yes" in lines
        if not endless:
            lines.append("Content-Length: " + str(len(body)))
        self.wfile.write(("HTTP/1.1 " + "\r\n".join(lines) + "\r\n\r\n").encode("utf-8"))
        self.wfile.write(body)
        while endless:
            self.wfile.write(body * 1000)

    def do_GET(self):
        if not self.is_allowed():
            return
        path = self.path_on_disk()
        try:
            if os.path.isfile(path):
                self.send_file(path)
            elif os.path.isfile(path + ".answer"):
                self.send_prepared(path + ".answer")
            else:
                self.answer(404, b"<p>There is no such page.</p>")
        except (BrokenPipeError, ConnectionResetError):
            self.close_connection = True

    def do_PUT(self):
        length = int(self.headers.get("Content-Length", 0))
        body = self.rfile.read(length if BEHAVIOUR.cut is None else min(length, BEHAVIOUR.cut))
        if len(body) < length:  # a page that came in part is no page
            self.close_connection = True
            self.connection.shutdown(socket.SHUT_RDWR)
            return
        if not self.is_allowed():
            return
        if BEHAVIOUR.full is not None and length > BEHAVIOUR.full:
            self.answer(507, b"")
            return
        path = self.path_on_disk()
        try:
            with open(path, "wb") as file:
                file.write(body)
        except OSError:
            self.answer(403, b"")
            return
        self.answer(201, b"")

    def do_OPTIONS(self):
        methods = [name[3:] for name in dir(self) if name.startswith("do_")]
        self.answer(204, b"", {"Allow": ", ".join(methods)})


class MovingHandler(Handler):
    """Renames and removes as well, as a server of shared folders does."""

    def do_MOVE(self):
        if not self.is_allowed():
            return
        target = self.path_on_disk(self.headers.get("Destination", ""))
        there = os.path.exists(target)
        if "refuses" in sys.argv:
            self.answer(403, b"")
        elif not os.path.isfile(self.path_on_disk()):
            self.answer(404, b"")
        elif there and self.headers.get("Overwrite") == "F":
            self.answer(412, b"")
        else:
            os.replace(self.path_on_disk(), target)
            self.answer(204 if there else 201, b"")

    def do_DELETE(self):
        if not self.is_allowed():
            return
        try:
            os.remove(self.path_on_disk())
            self.answer(204, b"")
        except OSError:
            self.answer(404, b"")


class Server(http.server.ThreadingHTTPServer):
    daemon_threads = True

    def handle_error(self, *_):
        pass  # clients that break off are part of the tests


class Server6(Server):
    address_family = socket.AF_INET6


def main():
    arguments = sys.argv[1:]
    Handler.folder = arguments[0]
    six = "--six" in arguments
    handler = MovingHandler if "moves" in arguments else Handler
    server = Server6(("::1", 0), handler) if six else Server(("127.0.0.1", 0), handler)
    if "--tls" in arguments:
        at = arguments.index("--tls")
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(arguments[at + 1], arguments[at + 2])
        server.socket = context.wrap_socket(server.socket, server_side=True)
    print(server.server_address[1], flush=True)
    listen(BEHAVIOUR)
    server.serve_forever()


main()
