"""An interactive shell in a terminal of its own, to see what the Tab key makes of a line."""

import os
import pathlib
import pty
import select
import signal
import time

COMPLETIONS = pathlib.Path(__file__).resolve().parents[2] / "completions"

_WAIT_SECONDS = 120

# Control-T shows the line as it stands, between marks. The marks are put together by the shell, so
# that the echo of these lines doesn't look like an answer.
_SHELLS = {
    "bash": (["bash", "--norc", "--noprofile", "-i"], rf"""
source '{COMPLETIONS}/metagen.bash'
bind 'set bell-style none' 'set enable-bracketed-paste off'
show() {{ printf '%s%s%s' '<''<' "$READLINE_LINE" '>''>'; }}
bind -x '"\C-t": show'
"""),
    "zsh": (["zsh", "-f", "-i"], rf"""
fpath=('{COMPLETIONS}' $fpath)
autoload -Uz compinit && compinit -u -D
unsetopt zle_bracketed_paste beep
show() {{ print -rn -- '<''<'"$BUFFER"'>''>' }}
zle -N show
bindkey '^T' show
bindkey '^U' kill-whole-line
"""),
}


class Shell:
    """Use it in a with statement."""

    def __init__(self, name, folder):
        self._command, self._setup = _SHELLS[name]
        self._folder = folder

    def __enter__(self):
        self._process, self._terminal = pty.fork()
        if self._process == 0:
            os.chdir(self._folder)
            environment = {"PATH": os.environ["PATH"], "TERM": "dumb", "PS1": "",
                           "HOME": str(self._folder), "LANG": "C.UTF-8"}
            os.execvpe(self._command[0], self._command, environment)
        self._send(self._setup + "echo 're''ady'\n")
        self._read_until("ready")
        return self

    def __exit__(self, *_):
        os.kill(self._process, signal.SIGKILL)
        os.waitpid(self._process, 0)
        os.close(self._terminal)

    def _send(self, text):
        os.write(self._terminal, text.encode())

    def _read_until(self, end):
        """What the terminal shows, up to the end."""
        text, deadline = "", time.monotonic() + _WAIT_SECONDS
        while end not in text:
            if not select.select([self._terminal], [], [], deadline - time.monotonic())[0]:
                raise TimeoutError(text)
            text += os.read(self._terminal, 65536).decode("utf-8", "replace")
        return text.partition(end)[0]

    def complete(self, line):
        """The line after the Tab key was pressed at its end."""
        self._send(f"{line}\t\x14")
        shown = self._read_until(">>")
        self._send("\x15")
        return shown.rpartition("<<")[2]
