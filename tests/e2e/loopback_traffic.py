"""Sends data over a loopback TCP connection for a while, so the loopback interface counts traffic.

Usage: python3 loopback_traffic.py SECONDS
Ends by itself after SECONDS; it never touches an address outside 127.0.0.1.
"""
import socket
import sys
import threading
import time

seconds = float(sys.argv[1])
server = socket.socket()
server.bind(("127.0.0.1", 0))
server.listen(1)


def drain():
    connection, _ = server.accept()
    while connection.recv(65536):
        pass


threading.Thread(target=drain, daemon=True).start()
client = socket.create_connection(server.getsockname())
chunk = b"x" * 20000
deadline = time.monotonic() + seconds
while time.monotonic() < deadline:
    client.sendall(chunk)  # about 200 KB a second
    time.sleep(0.1)
client.close()
