"""An FTP server for the tests, on this machine alone: ftp.py FOLDER USER PASSWORD [no-rename] [no-new-names]
[read-only] [--tls CERTIFICATE KEY].

The one user may do everything in the folder, but for what the words behind the password forbid: to rename, to make
files that are not there, or to write at all. With a certificate everything is encrypted from the first byte on, as
addresses of ftps have it.
"""

import logging
import os
import socket
import sys
import time

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import DTPHandler, FTPHandler
from pyftpdlib.servers import ThreadedFTPServer

from commands import Behaviour, listen

BEHAVIOUR = Behaviour()
WORDS = sys.argv[4:]


class Sink:
    """A file of the server's disk, which may have little room or whose server may go down."""

    def __init__(self, file, handler):
        self.file, self.handler, self.written = file, handler, 0
        self.name, self.closed = file.name, False

    def write(self, data):
        self.written += len(data)
        if BEHAVIOUR.cut is not None and self.written > BEHAVIOUR.cut:
            self.file.write(data[: max(0, len(data) - (self.written - BEHAVIOUR.cut))])
            self.file.flush()
            self.handler.go_down()
        if BEHAVIOUR.full is not None and self.written > BEHAVIOUR.full:
            raise OSError(28, "No space left on device")
        return self.file.write(data)

    def fileno(self):
        if self.closed:
            raise OSError("closed")
        return self.file.fileno()

    def __getattr__(self, name):
        return getattr(self.file, name)

    def close(self):
        self.closed = True
        self.file.close()


class Handler(FTPHandler):
    banner = "ready."

    def handle(self):
        time.sleep(BEHAVIOUR.slowly)
        super().handle()

    def go_down(self):
        for connection in (self.data_channel and self.data_channel.socket, self.socket):
            if connection:
                connection.shutdown(socket.SHUT_RDWR)

    def ftp_STOR(self, file, mode="w"):
        if "no-new-names" in WORDS and not os.path.exists(file):
            self.respond("553 File name not allowed.")
            return None
        return super().ftp_STOR(file, mode)

    def ftp_RNFR(self, path):
        if "no-rename" in WORDS:
            self.respond("550 Renaming is not permitted.")
            return None
        return super().ftp_RNFR(path)


class Channel(DTPHandler):
    def handle_error(self):
        error = sys.exc_info()[1]
        cause = error.args[0] if error.args and isinstance(error.args[0], OSError) else error
        if getattr(cause, "errno", None) == 28:
            self._resp = ("552 No room left on the disk.", logging.error)
            self.close()
        else:
            super().handle_error()


def opened(self, name, mode):
    file = open(name, mode)
    return Sink(file, self.cmd_channel) if "w" in mode and (BEHAVIOUR.cut, BEHAVIOUR.full) != (None, None) else file


def main():
    folder, user, password = sys.argv[1:4]
    logging.basicConfig(level=logging.CRITICAL)
    authorizer = DummyAuthorizer()
    authorizer.add_user(user, password, folder, perm="elr" if "read-only" in WORDS else "elradfmwMT")
    handler = Handler
    if "--tls" in WORDS:
        from pyftpdlib.handlers import TLS_DTPHandler, TLS_FTPHandler

        class TlsChannel(TLS_DTPHandler):
            def readable(self):
                # A client may shake hands before it says what it wants, which is not the end of its connection.
                return self._ssl_accepting or super().readable()

        class TlsHandler(Handler, TLS_FTPHandler):
            certfile, keyfile = WORDS[WORDS.index("--tls") + 1 :][:2]
            dtp_handler = TlsChannel
            tls_data_required = True

            @classmethod
            def get_ssl_context(cls):
                context = super().get_ssl_context()
                context.set_session_id(b"test")  # clients take the session along to the data's connection
                return context

            def handle(self):
                self.secure_connection(self.ssl_context)

            def handle_ssl_established(self):
                super().handle()  # the greeting

        handler = TlsHandler
    else:
        handler.dtp_handler = Channel
    handler.authorizer = authorizer
    handler.auth_failed_timeout = 0
    from pyftpdlib.filesystems import AbstractedFS

    class Files(AbstractedFS):
        open = opened

    handler.abstracted_fs = Files
    server = ThreadedFTPServer(("127.0.0.1", 0), handler)
    print(server.address[1], flush=True)
    listen(BEHAVIOUR)
    server.serve_forever(handle_exit=False)


main()
