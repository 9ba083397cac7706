"""A print system of one's own: a CUPS scheduler on a loopback port, everything of it in a folder.

Its queues pass the documents that they are handed unchanged into files.
"""

import os
import pwd
import re
import shutil
import socket
import subprocess
import time

from desk import end_with_parent

WAIT = 30  # seconds after which what did not come never comes


def tool(name):
    """Schedulers stand where ordinary users have no path."""
    return shutil.which(name, path=os.environ.get("PATH", "") + ":/usr/sbin:/sbin")


class PrintSystem:
    """A scheduler with a queue "papier" (the default one) and a queue "dossier"."""

    def __init__(self, folder):
        self.folder = folder
        with socket.socket() as probe:
            probe.bind(("127.0.0.1", 0))
            self.port = probe.getsockname()[1]
        self.server = f"127.0.0.1:{self.port}"
        self.process = None

    def path(self, *names):
        return os.path.join(self.folder, *names)

    def output(self, queue):
        return self.path("sortie", queue + ".pdf")

    def make_device(self):
        """A printer that keeps what it is sent, beside the system's own programs."""
        installed = os.path.realpath("/usr/lib/cups")
        for name in os.listdir(installed):
            if name != "backend":
                os.symlink(os.path.join(installed, name), self.path("lib", name))
        os.makedirs(self.path("lib", "backend"))
        device = self.path("lib", "backend", "essai")
        with open(device, "w") as script:
            script.write("""#!/bin/sh
[ $# -eq 0 ] && { echo 'direct essai "Unknown" "Essai"'; exit 0; }
paper=${DEVICE_URI#essai:}
cat "${6:--}" >"$paper.part" && mv "$paper.part" "$paper"
""")
        os.chmod(device, 0o755)

    def start(self):
        for name in ("etc", "spool", "spool/tmp", "cache", "run", "lib", "sortie"):
            os.makedirs(self.path(name), exist_ok=True)
        self.make_device()
        os.chmod(self.folder, 0o755)
        with open(self.path("etc", "cupsd.conf"), "w") as conf:
            conf.write(f"""
Listen {self.server}
Browsing Off
LogLevel debug
DefaultAuthType None
WebInterface No
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
""")
        user = ""
        if os.geteuid() == 0:
            # Filters never run as root.
            account = pwd.getpwnam("lp")
            for name in ("spool", "spool/tmp", "cache", "run", "sortie"):
                os.chown(self.path(name), 0, account.pw_gid)
                os.chmod(self.path(name), 0o770)
            user = "User lp\nGroup lp\nSystemGroup root\n"
        with open(self.path("etc", "cups-files.conf"), "w") as conf:
            conf.write(f"""
{user}
ServerRoot {self.path("etc")}
ServerBin {self.path("lib")}
RequestRoot {self.path("spool")}
TempDir {self.path("spool", "tmp")}
CacheDir {self.path("cache")}
StateDir {self.path("run")}
ErrorLog {self.path("error_log")}
AccessLog {self.path("access_log")}
PageLog {self.path("page_log")}
""")
        self.process = subprocess.Popen(
            [tool("cupsd"), "-f", "-c", self.path("etc", "cupsd.conf"),
             "-s", self.path("etc", "cups-files.conf")],
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            stderr=open(self.path("stderr"), "w"), preexec_fn=end_with_parent)
        deadline = time.monotonic() + WAIT
        while True:
            try:
                socket.create_connection(("127.0.0.1", self.port), timeout=1).close()
                break
            except OSError:
                if self.process.poll() is not None or time.monotonic() > deadline:
                    raise AssertionError("the scheduler does not start: " +
                                         open(self.path("stderr")).read())
                time.sleep(0.05)
        for queue in ("papier", "dossier"):
            self.add(queue)
        self.run("lpadmin", "-d", "papier")

    def add(self, queue):
        # Without a driver: the document reaches the device as the program made it.
        self.run("lpadmin", "-p", queue, "-E", "-v", "essai:" + self.output(queue), "-m", "raw")

    def command(self, name, *arguments):
        words = [tool(name), *arguments]
        return f"CUPS_SERVER={self.server} " + " ".join(words)

    def run(self, name, *arguments):
        subprocess.run([tool(name), *arguments], check=True, timeout=WAIT,
                       env=dict(os.environ, CUPS_SERVER=self.server),
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def stop(self):
        if self.process is None:
            return
        if self.process.poll() is None:
            self.process.terminate()
            try:
                self.process.wait(10)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait()
        self.process = None

    def jobs(self):
        """How many documents the scheduler was handed."""
        spool = self.path("spool")
        return len([name for name in os.listdir(spool) if re.match(r"c\d+", name)])
