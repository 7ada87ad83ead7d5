"""A page that answers with its caller's address the way the utility panel expects it, or a
server that accepts and never answers.

Usage: python3 echo_server.py PORT_FILE SECONDS [--silent]
Listens on 127.0.0.1 (a free port, written to PORT_FILE) and ends by itself after SECONDS.
"""
import http.server
import socket
import sys
import threading
import time

port_file, seconds = sys.argv[1], float(sys.argv[2])


class Echo(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        # 14 characters between the word's end and the address, then a second line.
        body = ("REMOTE_ADDR" + " " * 13 + ":" + self.client_address[0] + "\r\nREMOTE_PORT x\r\n").encode()
        self.send_response(200)
        self.send_header("Content-Type", "text/plain")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *args):
        pass


if "--silent" in sys.argv:
    server = socket.socket()
    server.bind(("127.0.0.1", 0))
    server.listen(5)
    port = server.getsockname()[1]
    held = []
    threading.Thread(target=lambda: [held.append(server.accept()) for _ in iter(int, 1)], daemon=True).start()
else:
    server = http.server.HTTPServer(("127.0.0.1", 0), Echo)
    port = server.server_address[1]
    threading.Thread(target=server.serve_forever, daemon=True).start()
with open(port_file, "w") as f:
    f.write(str(port))
time.sleep(seconds)
