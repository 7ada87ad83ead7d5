"""Holds open TCP connections on the loopback for a benchmark of the connection table.

Usage: python3 loopback_connections.py COUNT READY_FILE SECONDS
Opens COUNT connections to a listener of its own on 127.0.0.1, writes READY_FILE, and ends by
itself after SECONDS (or when killed).
"""
import socket
import sys
import time

count, ready, seconds = int(sys.argv[1]), sys.argv[2], float(sys.argv[3])
listener = socket.socket()
listener.bind(("127.0.0.1", 0))
listener.listen(count)
held = []
for _ in range(count):
    held.append(socket.create_connection(listener.getsockname()))
    held.append(listener.accept()[0])
open(ready, "w").close()
time.sleep(seconds)
