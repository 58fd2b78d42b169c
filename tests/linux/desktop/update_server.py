#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""update_server.py CERTIFICATE KEY: an HTTPS server at a free port of this machine, whose answer depends on the
path. Prints the ports, of HTTPS, of plain HTTP and of one that accepts and says nothing, in a line; then each
request, its headers joined, in a line."""
import http.server
import socket
import ssl
import sys
import threading
import time


class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    ports = []

    def do_GET(self):
        headers = " ".join(f"{name}={value}" for name, value in self.headers.items())
        print("request", self.path, headers, flush=True)
        name = self.path.strip("/").replace("-", "_")
        getattr(self, "answer_" + name, lambda: self.send(404, "9.9"))()

    def log_message(self, *arguments):
        pass

    def send(self, status, text, **headers):
        self.send_response(status)
        for name, value in headers.items():
            self.send_header(name, value)
        self.send_header("Content-Length", str(len(text)))
        self.end_headers()
        self.wfile.write(text.encode())

    def answer_newer(self):
        self.send(200, "1.10\n")

    def answer_same(self):
        self.send(200, "1.0")

    def answer_older(self):
        self.send(200, "0.9\r\n")

    def answer_empty(self):
        self.send(200, "")

    def answer_page(self):
        self.send(200, "<html>1.10</html>")

    def answer_refused(self):
        self.send(503, "1.10")

    def answer_redirect(self):
        self.send(302, "", Location="/newer")

    def answer_to_http(self):
        self.send(302, "", Location=f"http://localhost:{self.ports[1]}/newer")

    def answer_to_file(self):
        self.send(302, "", Location="file:///etc/hostname")

    def answer_circle(self):
        self.send(302, "", Location="/circle")

    def answer_truncated(self):
        self.send_response(200)
        self.send_header("Content-Length", "100")
        self.end_headers()
        self.wfile.write(b"1.10")
        self.close_connection = True

    def answer_flood(self):
        """More than anybody wants, a version at its head; without a length that would tell."""
        self.send_response(200)
        self.send_header("Transfer-Encoding", "chunked")
        self.end_headers()
        chunk = b"1.10" + b" " * 1020
        while True:
            self.wfile.write(b"400\r\n" + chunk + b"\r\n")
            chunk = b" " * 1024

    def answer_large(self):
        self.send(200, "1.10" + " " * 64 * 1024)

    def answer_hung(self):
        time.sleep(600)

    def answer_slow(self):
        """A byte each half second, so that it never stands still."""
        self.send_response(200)
        self.send_header("Content-Length", "1000")
        self.end_headers()
        for _ in range(1000):
            self.wfile.write(b"1")
            time.sleep(0.5)


class Server(http.server.ThreadingHTTPServer):
    daemon_threads = True

    def handle_error(self, request, client_address):
        pass


def main():
    context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    context.load_cert_chain(sys.argv[1], sys.argv[2])
    secure = Server(("127.0.0.1", 0), Handler)
    secure.socket = context.wrap_socket(secure.socket, server_side=True, do_handshake_on_connect=False)
    plain = Server(("127.0.0.1", 0), Handler)
    silent = socket.create_server(("127.0.0.1", 0))
    Handler.ports = [secure.server_port, plain.server_port, silent.getsockname()[1]]
    threading.Thread(target=plain.serve_forever, daemon=True).start()
    print(*Handler.ports, flush=True)
    secure.serve_forever()


main()
