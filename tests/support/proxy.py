"""A proxy between a command and a CUPS server that spoils one connection, and passes all others."""
import os
import socket
import threading
import time


class Proxy:
    """Listens on a port of its own while it is used in a `with`.

    `spoil` is what happens to the connection on which byte number `at` would pass, counted over all
    connections in its direction ("up" is to the server), or the text `at` for the first time: "cut",
    "gone" (cuts this and all later ones), "stall", "mute" (stalls this and all later ones), "drip"
    (ten bytes a second), "zero" (four bytes after the text), "swap" (the text becomes `by`, of the
    same length), or "flood" (answered by the proxy, with zeros without an end). `rate` limits every
    connection, in bytes a second.
    """

    def __init__(self, spoil=None, direction="up", at=0, by=None, rate=None):
        self.spoil, self.direction, self.at, self.rate = spoil, direction, at, rate
        self.by = by
        self.kept = []
        self.spoilt = False
        self.passed = {"up": 0, "down": 0}
        self.lock = threading.Lock()
        host, port = os.environ["CUPS_SERVER"].split(":")
        self.server = (host, int(port))

    def __enter__(self):
        self.listener = socket.create_server(("127.0.0.1", 0), backlog=512)
        if self.rate:  # lets nobody be done long before the line is
            self.listener.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, 16384)
        self.address = "127.0.0.1:%d" % self.listener.getsockname()[1]
        threading.Thread(target=self.accept, daemon=True).start()
        return self

    def __exit__(self, *_):
        self.listener.shutdown(socket.SHUT_RDWR)
        self.listener.close()

    def accept(self):
        try:
            while True:
                client = self.listener.accept()[0]
                if self.spoilt and self.spoil == "gone":
                    client.close()
                    continue
                if self.spoilt and self.spoil == "mute":
                    self.kept.append(client)
                    continue
                server = socket.create_connection(self.server)
                for way in ((client, server, "up"), (server, client, "down")):
                    threading.Thread(target=self.pump, args=way, daemon=True).start()
        except OSError:
            pass  # closed

    def room(self, data, direction):
        """Returns how much of `data` passes before the spoiling; None when all of it does."""
        with self.lock:
            before = self.passed[direction]
            self.passed[direction] += len(data)
            if self.spoil is None or self.direction != direction or self.spoilt:
                return None
            room = data.find(self.at) if isinstance(self.at, bytes) else self.at - before
            self.spoilt = 0 <= room < len(data)
            return room if self.spoilt else None

    def pump(self, source, target, direction):
        try:
            while data := source.recv(4096):
                if self.rate:
                    time.sleep(len(data) / self.rate)
                room = self.room(data, direction)
                if room is None:
                    target.sendall(data)
                    continue
                target.sendall(data[:room])
                if self.spoil in ("cut", "gone"):
                    break
                if self.spoil == "zero":
                    room += len(self.at)
                    target.sendall(self.at + bytes(4) + data[room + 4:])
                    continue
                if self.spoil == "swap":
                    target.sendall(self.by + data[room + len(self.by):])
                    continue
                if self.spoil in ("stall", "mute"):
                    time.sleep(60)
                if self.spoil == "flood":
                    source.sendall(b"HTTP/1.1 200 OK\r\nContent-Length: 99999999999\r\n\r\n")
                while self.spoil == "flood":
                    source.sendall(bytes(65536))
                while data:
                    for byte in data[room:]:
                        target.sendall(bytes([byte]))
                        time.sleep(0.1)
                    data, room = source.recv(4096), 0
        except OSError:
            pass  # either side has gone
        for end in (source, target):
            try:
                end.shutdown(socket.SHUT_RDWR)
            except OSError:
                pass
