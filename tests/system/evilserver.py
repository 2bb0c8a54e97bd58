"""An HTTP server that answers everything with one fault, until it is ended: evilserver.py cut|empty|huge|drip.
The first line of its output is its port."""
import socket
import sys
import time

HEAD = b"HTTP/1.1 200 OK\r\n"


def answers(fault):
    if fault == "cut":
        yield HEAD + b'Content-Length: 1000\r\n\r\n<directory><display count="45"/><item>'
    elif fault == "empty":
        yield HEAD + b"Content-Length: 0\r\n\r\n"
    elif fault == "huge":
        yield HEAD + b"\r\n"
        for _ in range(50):
            yield b"<item/>" * 150000
    elif fault == "drip":
        yield HEAD + b"\r\n"
        while True:
            yield b"<"
            time.sleep(1)


with socket.create_server(("127.0.0.1", 0)) as server:
    print(server.getsockname()[1], flush=True)
    while True:
        client, _ = server.accept()
        with client:
            client.recv(65536)
            try:
                for answer in answers(sys.argv[1]):
                    client.sendall(answer)
            except OSError:
                pass  # the other side has had enough
