# SPDX-License-Identifier: MIT
"""inside.py PORT: in the machine; starts the programs that the lines of the port name, each a list in JSON, and answers
with how they ended and what they said. What begins with "&" is only started, and says nothing; an empty list is a
moment by the machine's clock."""
import base64
import json
import os
import subprocess
import sys
import time


def obey(command):
    if not command:
        time.sleep(0.05)
        return {}
    if command[0] == "&":
        subprocess.Popen(command[1:], stdin=subprocess.DEVNULL, start_new_session=True)
        return {"status": 0, "output": ""}
    try:
        done = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    except OSError as failure:
        return {"status": 127, "output": base64.b64encode(str(failure).encode()).decode("ascii")}
    return {"status": done.returncode, "output": base64.b64encode(done.stdout).decode("ascii")}


while not os.path.exists(sys.argv[1]):
    time.sleep(0.1)
port = os.open(sys.argv[1], os.O_RDWR)
with open(port, "rb", closefd=False) as orders, open(port, "wb") as answers:
    while line := orders.readline():
        answers.write(json.dumps(obey(json.loads(line))).encode("ascii") + b"\n")
        answers.flush()
