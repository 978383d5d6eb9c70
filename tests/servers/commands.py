"""What both servers share: their port is the first line that they print, and the lines of their standard input tell
them how to behave. They end with its end, so that none is left behind by a test that was killed."""

import os
import sys
import threading


class Behaviour:
    """How a server behaves, which the test may change at any time."""

    def __init__(self):
        self.slowly = 0.0  # seconds before the first answer on a connection
        self.cut = None    # break a connection off after so many bytes of a file
        self.full = None   # there is room for so many bytes of a file

    def obey(self, line):
        word, _, value = line.partition(" ")
        if word == "slowly":
            self.slowly = int(value) / 1000
        elif word in ("cut", "full"):
            setattr(self, word, int(value) if value else None)
        else:
            return "what is " + word + "?"
        return "ok"


def listen(behaviour):
    """Obeys the lines of the standard input, and ends the process behind the last one."""

    def read():
        for line in sys.stdin:
            print(behaviour.obey(line.strip()), flush=True)
        os._exit(0)

    threading.Thread(target=read, daemon=True).start()
