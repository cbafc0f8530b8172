"""A stand-in for the network controller's FTP service, on loopback, for tests.

It takes its fixed login without a password, answers an image sent to a station it knows
with "ready to take file", and one for a net id with no station with "550 file open fails".
With --silent it accepts connections and never says a word. The faults a real controller
or network may show are played on request: --drop-after N closes both connections once N
bytes of an image have arrived, --fail-after-transfer answers 451 where 226 belongs,
--greeting replaces the 220 text, --refuse-login answers every login with 530, --stall takes
the data and then never answers. The port it
listens on is written to --port-file once it is ready.
"""
import argparse
import logging
import os
import socket
import time

parser = argparse.ArgumentParser()
parser.add_argument("--port-file", required=True)
parser.add_argument("--root")
parser.add_argument("--login", default="kxu")
parser.add_argument("--prefix", default="Q9z")
parser.add_argument("--stations", default="", help="net ids with a station, comma separated")
parser.add_argument("--silent", action="store_true")
parser.add_argument("--drop-after", type=int, default=-1)
parser.add_argument("--fail-after-transfer", action="store_true")
parser.add_argument("--greeting")
parser.add_argument("--refuse-login", action="store_true")
parser.add_argument("--stall", action="store_true")
args = parser.parse_args()


def announce(port):
    with open(args.port_file + ".part", "w") as f:
        f.write(str(port))
    os.replace(args.port_file + ".part", args.port_file)


if args.silent:
    listener = socket.socket(socket.AF_INET, socket.SOCK_STREAM)
    listener.bind(("127.0.0.1", 0))
    listener.listen(8)
    announce(listener.getsockname()[1])
    held = []
    while True:
        connection, _ = listener.accept()
        held.append(connection)
        time.sleep(0.01)

logging.basicConfig(level=logging.WARNING)

from pyftpdlib.authorizers import DummyAuthorizer  # noqa: E402
from pyftpdlib.handlers import DTPHandler, FTPHandler  # noqa: E402
from pyftpdlib.servers import FTPServer  # noqa: E402

stations = {"%s%X.zpd" % (args.prefix, int(n)) for n in args.stations.split(",") if n}


class Receiver(DTPHandler):
    def handle_read(self):
        if args.drop_after < 0:
            return DTPHandler.handle_read(self)
        chunk = self.recv(self.ac_in_buffer_size)
        if not chunk:
            self.transfer_finished = True
            return
        kept = chunk[: max(0, args.drop_after - self.tot_bytes_received)]
        self.tot_bytes_received += len(chunk)
        self.file_obj.write(kept)
        if self.tot_bytes_received >= args.drop_after:
            self.cmd_channel.close()

    handle_read_event = handle_read  # the base class reads through this alias


class Controller(FTPHandler):
    dtp_handler = Receiver

    def ftp_USER(self, line):
        if line != args.login or args.refuse_login:
            self.respond("530 Login incorrect.")
            return
        self.username = line
        self.handle_auth_success(args.root, "", "User logged in.")

    def ftp_STOR(self, file, mode="w"):
        if os.path.basename(file) not in stations:
            self.respond("550 file open fails")
            return
        return FTPHandler.ftp_STOR(self, file, mode)

    def respond(self, resp, logfun=None):
        if resp.startswith(("125 ", "150 ")):
            resp = "150 ready to take file"
        if resp.startswith("226 ") and args.stall:
            return None
        if resp.startswith("226 ") and args.fail_after_transfer:
            resp = "451 Requested action aborted: local error in processing."
        if logfun is None:
            return FTPHandler.respond(self, resp)
        return FTPHandler.respond(self, resp, logfun)


authorizer = DummyAuthorizer()
authorizer.add_user(args.login, "", args.root, perm="elradfmwMT")
Controller.authorizer = authorizer
if args.greeting:
    Controller.banner = args.greeting
server = FTPServer(("127.0.0.1", 0), Controller)
announce(server.socket.getsockname()[1])
server.serve_forever(handle_exit=True)
