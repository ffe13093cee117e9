"""An interactive shell in a terminal of its own, to see what the Tab key makes of a line."""

import os
import pathlib

import pexpect

COMPLETIONS = pathlib.Path(__file__).resolve().parents[2] / "completions"

# metagen-lint is asked for its rules.
BUILD = pathlib.Path(os.environ.get(
    "METAGEN_BUILD", COMPLETIONS.parent / "build" / "release")).resolve()

# Control-T shows the line as it stands, between marks. The marks are put together by the shell, so
# that the echo of these lines doesn't look like an answer.
_SHELLS = {
    "bash": (["bash", "--norc", "--noprofile", "-i"], rf"""
source '{COMPLETIONS}/metagen.bash'
source '{COMPLETIONS}/metagen-lint.bash'
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
        command, setup = _SHELLS[name]
        self._terminal = pexpect.spawn(
            command[0], command[1:], cwd=folder, encoding="utf-8", timeout=120,
            env={"PATH": f"{BUILD}:{os.environ['PATH']}", "TERM": "dumb", "PS1": "",
                 "HOME": str(folder), "LANG": "C.UTF-8"})
        self._terminal.delaybeforesend = None
        self._terminal.send(setup + "echo 're''ady'\n")
        self._terminal.expect_exact("ready")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._terminal.close(force=True)

    def complete(self, line):
        """The line after the Tab key was pressed at its end."""
        self._terminal.send(f"{line}\t\x14")
        self._terminal.expect_exact(">>")
        shown = self._terminal.before
        self._terminal.send("\x15")
        return shown.rpartition("<<")[2]
