"""An HTTP server that answers everything with one fault, until it is ended: evilserver.py cut|empty|huge|drip.
The first line of its output is its port."""
import contextlib
import socket
import sys
import time

HEAD = b"HTTP/1.1 200 OK\r\n"
ANSWERS = {"cut": [HEAD + b"Content-Length: 1000\r\n\r\n<directory><item>"],
           "empty": [HEAD + b"Content-Length: 0\r\n\r\n"],
           "huge": [HEAD + b"\r\n"] + [b"<item/>" * 150000] * 50,
           "drip": [HEAD + b"\r\n"] + [b"<"] * 100}

with socket.create_server(("127.0.0.1", 0)) as server:
    print(server.getsockname()[1], flush=True)
    while True:
        client, _ = server.accept()
        with client, contextlib.suppress(OSError):  # the other side may have had enough
            client.recv(65536)
            for answer in ANSWERS[sys.argv[1]]:
                client.sendall(answer)
                time.sleep(sys.argv[1] == "drip")
