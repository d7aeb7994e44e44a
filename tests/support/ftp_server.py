#!/usr/bin/env python3
"""A small FTP server on 127.0.0.1 for the FTP tests and the benchmark.

Serves ROOT to the user "anonymous" with PASSWORD (checked, unlike plain anonymous access) and
prints "PORT <n>" on stdout once it listens. Faults for the failure tests:
  --fault none          a well-behaved server
  --fault never-greet   accepts connections and never sends the greeting
  --fault drop          sends half of every file, then drops the control and data connections
  --fault stall         sends half of every file, then sends nothing more
  --fault stall-list    opens the data connection of a listing and sends nothing
Usage: ftp_server.py ROOT PASSWORD [--port N] [--fault KIND]
"""
import argparse
import logging
import sys

from pyftpdlib.authorizers import AuthenticationFailed, DummyAuthorizer
from pyftpdlib.handlers import DTPHandler, FTPHandler
from pyftpdlib.servers import FTPServer


class CheckedAuthorizer(DummyAuthorizer):
    """Checks the password of "anonymous" too."""

    def validate_authentication(self, username, password, handler):
        if not self.has_user(username) or self.user_table[username]["pwd"] != password:
            raise AuthenticationFailed("Login incorrect.")


def make_handlers(fault):
    class FaultDTP(DTPHandler):
        def close_when_done(self):
            if self.cmd != "RETR" or fault not in ("drop", "stall"):
                super().close_when_done()
            elif fault == "drop":
                self.ioloop.call_later(0.3, self.cmd_channel.close, _errback=self.handle_error)

    class FaultHandler(FTPHandler):
        dtp_handler = FaultDTP
        use_sendfile = False
        auth_failed_timeout = 0.05

        def handle(self):
            if fault != "never-greet":
                super().handle()

        def push_dtp_data(self, data, isproducer=False, file=None, cmd=None):
            if cmd == "LIST" and fault == "stall-list":
                self.respond("150 Here it comes.")
                return None
            if cmd == "RETR" and fault in ("drop", "stall"):
                whole = file.read()
                file.close()
                return super().push_dtp_data(whole[: len(whole) // 2], False, None, cmd)
            return super().push_dtp_data(data, isproducer, file, cmd)

    return FaultHandler


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("root")
    parser.add_argument("password")
    parser.add_argument("--port", type=int, default=0)
    parser.add_argument("--fault", default="none",
                        choices=["none", "never-greet", "drop", "stall", "stall-list"])
    args = parser.parse_args()
    logging.basicConfig(level=logging.CRITICAL)

    authorizer = CheckedAuthorizer()
    authorizer.add_user("anonymous", args.password, args.root, perm="elradfmwMT")
    handler = make_handlers(args.fault)
    handler.authorizer = authorizer
    handler.permit_foreign_addresses = False
    handler.passive_ports = None
    server = FTPServer(("127.0.0.1", args.port), handler)
    server.max_cons = 64
    print("PORT %d" % server.socket.getsockname()[1], flush=True)
    server.serve_forever(handle_exit=True)


if __name__ == "__main__":
    sys.exit(main())
