#!/usr/bin/env python3
"""The shell completions, manual pages and AppStream metadata against the programs themselves.

Usage: check_cli_documents.py SELFSAME_CLI SOURCE_DIR VERSION [SELFSAME_APP]

The lists a completion offers (options, commands, modes, rule names, formats...) must be
the ones the program accepts: its --help names every option and command, and its error
message for a wrong value names the values it takes. The completions are run for real: bash
calls the function, fish answers `complete -C`, and zsh completes in its line editor on a
pseudo-terminal, with compadd recording what it is given.
"""

import os
import pty
import re
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

CLI, SOURCE, VERSION = os.path.abspath(sys.argv[1]), sys.argv[2], sys.argv[3]
APP = os.path.abspath(sys.argv[4]) if len(sys.argv) > 4 else None
PACKAGING = os.path.join(SOURCE, "packaging")
BASH_COMPLETION = os.path.join(PACKAGING, "completions", "selfsame-cli.bash")
FISH_COMPLETION = os.path.join(PACKAGING, "completions", "selfsame-cli.fish")
ZSH_COMPLETION = os.path.join(PACKAGING, "completions", "_selfsame-cli")

# Options whose values the program lists in its refusal of a wrong one, with the arguments
# that reach that check.
VALUE_OPTIONS = {
    "--mode": [],
    "--format": [],
    "--select": [],
    "--replace-with": ["--select", "same-folder"],
    "--keep": ["--select", "same-folder"],
    "--date": ["--select", "same-folder"],
}
WRONG = "wrong-value"


class Sandbox:
    """A home, a working folder and a PATH of our own, so that no shell writes elsewhere."""

    def __init__(self):
        self.root = tempfile.mkdtemp(prefix="selfsame-cli-documents-")
        self.home = os.path.join(self.root, "home")
        self.work = os.path.join(self.root, "work")
        self.bin = os.path.join(self.root, "bin")
        for folder in (self.home, self.work, self.bin, os.path.join(self.work, "Pictures")):
            os.makedirs(folder)
        open(os.path.join(self.work, "photo.jpg"), "w").close()
        os.symlink(CLI, os.path.join(self.bin, "selfsame-cli"))
        runtime = os.path.join(self.root, "runtime")
        os.makedirs(runtime, mode=0o700)
        self.env = {
            "PATH": self.bin + os.pathsep + "/usr/bin:/bin",
            "HOME": self.home,
            "XDG_CONFIG_HOME": os.path.join(self.home, ".config"),
            "XDG_DATA_HOME": os.path.join(self.home, ".local/share"),
            "XDG_CACHE_HOME": os.path.join(self.home, ".cache"),
            "XDG_STATE_HOME": os.path.join(self.home, ".local/state"),
            "XDG_RUNTIME_DIR": runtime,
            "LANG": "C.UTF-8",
            "QT_QPA_PLATFORM": "offscreen",
        }
        for sanitizer in ("ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"):
            if sanitizer in os.environ:
                self.env[sanitizer] = os.environ[sanitizer]

    def run(self, command, **kwargs):
        return subprocess.run(command, cwd=self.work, env=self.env, capture_output=True, text=True,
                              timeout=60, **kwargs)

    def remove(self):
        shutil.rmtree(self.root)


sandbox = None


def cli(*arguments):
    return sandbox.run(["selfsame-cli", *arguments])


def help_text():
    result = cli("--help")
    assert result.returncode == 0, result.stderr
    return result.stdout


def help_options():
    text = help_text()
    long_options = set(re.findall(r"(?<![\w-])--[a-z][a-z0-9-]*", text))
    short_options = set(re.findall(r"^\s+(-[0-9a-z]), --", text, re.MULTILINE))
    return long_options | short_options


def help_commands():
    usage = help_text().split("\n\n")[0]
    return set(re.findall(r"^(?:Usage:)?\s+selfsame-cli ([a-z][a-z-]*)", usage, re.MULTILINE))


def accepted_values(option):
    """The values the program names when it refuses a wrong one."""
    result = cli(*VALUE_OPTIONS[option], option, WRONG, sandbox.work)
    assert result.returncode == 2, f"{option} {WRONG} was not refused: {result.stderr}"
    message = result.stderr.splitlines()[0]
    listed = re.search(r"takes (.*?), not '" + WRONG, message) or re.search(r"\(([^()]*)\)\s*$", message)
    assert listed, f"no list of values in: {message}"
    return set(re.split(r",\s*|\s+or\s+", listed.group(1)))


def attribute_keys():
    result = cli("--list-attributes")
    assert result.returncode == 0, result.stderr
    return {line.split("\t")[0] for line in result.stdout.splitlines()}


def bash_complete(*words):
    """COMPREPLY for the command line `selfsame-cli WORDS...`, the last word being completed."""
    driver = ('source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _selfsame_cli; '
              'printf "%s\\n" "${COMPREPLY[@]}"')
    result = sandbox.run(["bash", "--norc", "--noprofile", "-c", driver, "bash", BASH_COMPLETION,
                          "selfsame-cli", *words])
    assert result.returncode == 0 and not result.stderr, result.stderr
    return {line for line in result.stdout.splitlines() if line}


def fish_complete(line):
    result = sandbox.run(["fish", "--no-config", "-c",
                          f"source {FISH_COMPLETION}; complete -C {fish_quote(line)}"])
    assert result.returncode == 0 and not result.stderr, result.stderr
    return {entry.split("\t")[0] for entry in result.stdout.splitlines() if entry}


def fish_quote(text):
    return "'" + text.replace("\\", "\\\\").replace("'", "\\'") + "'"


ZSH_SETUP = """
bindkey -e
unsetopt auto_list list_beep
fpath=({completions} $fpath)
autoload -Uz compinit && compinit -u -D
# Every candidate the completion offers passes through compadd: note it, then offer it.
compadd() {{
  local -a offered
  builtin compadd -O offered "$@"
  (( $#offered )) && print -rl -- $offered >> {found}
  builtin compadd "$@"
}}
PS1='<zsh-prompt>'
unset zle_bracketed_paste
print -r ready > {ready}
"""
ZSH_PROMPT = b"<zsh-prompt>"
ZSH = shutil.which("zsh")


def zsh_complete(line):
    """What zsh offers when Tab is pressed at the end of `line`."""
    found, ready, done = (os.path.join(sandbox.root, name) for name in ("zsh-found", "zsh-ready", "zsh-done"))
    for name in (found, ready, done):
        if os.path.exists(name):
            os.remove(name)
    setup = os.path.join(sandbox.root, "zsh-setup")
    with open(setup, "w") as file:
        file.write(ZSH_SETUP.format(completions=os.path.dirname(ZSH_COMPLETION), found=found, ready=ready))
    pid, terminal = pty.fork()
    if pid == 0:
        os.chdir(sandbox.work)
        os.execve(ZSH, ["zsh", "-f", "-i"], dict(sandbox.env, TERM="dumb", ZDOTDIR=sandbox.home))
    shown = bytearray()

    def wait_until(condition):
        deadline = time.monotonic() + 30
        while not condition():
            assert time.monotonic() < deadline, f"zsh did not answer: {line!r}; it showed {bytes(shown)!r}"
            # Keep reading, or zsh blocks on a full terminal.
            if select.select([terminal], [], [], 0.05)[0]:
                shown.extend(os.read(terminal, 65536))

    try:
        os.write(terminal, f"source {setup}\n".encode())
        wait_until(lambda: os.path.exists(ready) and ZSH_PROMPT in shown)
        # Typing ahead of the line editor loses keys: each waits until the one before is seen.
        del shown[:]
        os.write(terminal, line.encode())
        wait_until(lambda: line.encode() in shown)
        os.write(terminal, b"\t")
        # Ctrl-U clears the line; it is read in turn, unlike Ctrl-C's signal.
        os.write(terminal, f"\x15print -r done > {done}\n".encode())
        wait_until(lambda: os.path.exists(done))
    finally:
        os.kill(pid, signal.SIGKILL)
        os.waitpid(pid, 0)
        os.close(terminal)
    if not os.path.exists(found):
        return set()
    with open(found) as file:
        return {entry for entry in file.read().splitlines() if entry}


def roff_text(name):
    with open(os.path.join(PACKAGING, "man", name)) as file:
        return file.read().replace("\\-", "-")


class OptionsTest(unittest.TestCase):
    """Every option of --help, and only those, in the completions and the manual page."""

    def test_bash_offers_every_option(self):
        self.assertEqual(bash_complete("-"), help_options())

    def test_fish_offers_every_option(self):
        self.assertEqual(fish_complete("selfsame-cli -"), help_options())

    def test_zsh_offers_every_option(self):
        self.assertEqual(zsh_complete("selfsame-cli -"), help_options())

    def test_manual_page_describes_every_option(self):
        page = roff_text("selfsame-cli.1")
        described = set(re.findall(r"(?<![\w-])--[a-z][a-z0-9-]*", page))
        described |= {option for option in re.findall(r"\.BR (-[0-9a-z]) ", page)}
        self.assertEqual(described, help_options())


class CommandsTest(unittest.TestCase):
    """The commands of the usage lines: put-back, recover and the others."""

    def test_completions_offer_them_first(self):
        self.assertTrue({"put-back", "recover", "clear-cache"} <= help_commands())
        files = {"photo.jpg", "Pictures"}
        self.assertEqual(bash_complete(""), help_commands() | files)
        self.assertEqual(fish_complete("selfsame-cli "), help_commands() | {"photo.jpg", "Pictures/"})
        self.assertEqual(zsh_complete("selfsame-cli "), help_commands() | files)

    def test_only_the_first_word_is_a_command(self):
        self.assertNotIn("recover", bash_complete("--summary", ""))
        self.assertNotIn("recover", fish_complete("selfsame-cli --summary "))
        self.assertNotIn("recover", zsh_complete("selfsame-cli --summary "))

    def test_what_follows_a_command(self):
        self.assertEqual(bash_complete("put-back", ""), {"photo.jpg", "Pictures"})
        self.assertEqual(bash_complete("recover", "-"), set())
        self.assertEqual(fish_complete("selfsame-cli recover "), set())
        self.assertEqual(fish_complete("selfsame-cli put-back "), {"photo.jpg", "Pictures/"})
        self.assertEqual(zsh_complete("selfsame-cli recover -"), set())
        self.assertEqual(zsh_complete("selfsame-cli put-back "), {"photo.jpg", "Pictures"})

    def test_manual_page_describes_every_command(self):
        page = roff_text("selfsame-cli.1")
        section = page.split(".SH COMMANDS")[1].split(".SH ")[0]
        described = set(re.findall(r"^\.BI? ([a-z][a-z-]*)", section, re.MULTILINE))
        described |= set(re.findall(r"^\.BR ([a-z][a-z-]*) ", section, re.MULTILINE))
        self.assertEqual(described, help_commands())


class ValuesTest(unittest.TestCase):
    """Modes, formats, rule names and the other fixed values, as the program takes them."""

    def test_the_program_lists_what_it_takes(self):
        self.assertEqual(accepted_values("--mode"),
                         {"content", "duration", "name", "attribute", "similar-images", "similar-audio"})
        self.assertIn("same-folder-name", accepted_values("--select"))

    def test_bash(self):
        for option in VALUE_OPTIONS:
            with self.subTest(option):
                self.assertEqual(bash_complete(option, ""), accepted_values(option))
        # Bash splits --mode=na at the equals sign.
        self.assertEqual(bash_complete("--mode", "=", ""), accepted_values("--mode"))
        self.assertEqual(bash_complete("--mode", "=", "na"), {"name"})

    def test_fish(self):
        for option in VALUE_OPTIONS:
            with self.subTest(option):
                self.assertEqual(fish_complete(f"selfsame-cli {option} "), accepted_values(option))
        self.assertEqual(fish_complete("selfsame-cli --mode=na"), {"--mode=name"})

    def test_zsh(self):
        for option in VALUE_OPTIONS:
            with self.subTest(option):
                self.assertEqual(zsh_complete(f"selfsame-cli {option} "), accepted_values(option))
        self.assertEqual(zsh_complete("selfsame-cli --mode=na"), {"name"})

    def test_attribute_keys_come_from_the_program(self):
        keys = attribute_keys()
        self.assertIn("kMDItemTitle", keys)
        self.assertEqual(bash_complete("--attribute", ""), keys)
        self.assertEqual(fish_complete("selfsame-cli --attribute "), keys)
        self.assertEqual(zsh_complete("selfsame-cli --attribute "), keys)

    def test_the_folder_rule_takes_a_folder(self):
        self.assertEqual(bash_complete("--select", "folder", ""), {"Pictures"})
        self.assertEqual(fish_complete("selfsame-cli --select folder "), {"Pictures/"})
        self.assertEqual(zsh_complete("selfsame-cli --select folder "), {"Pictures"})


class VersionTest(unittest.TestCase):
    """One version everywhere a user or a software centre reads it."""

    def test_program_pages_metainfo_and_changelog_agree(self):
        self.assertEqual(cli("--version").stdout.strip(), f"selfsame-cli {VERSION}")
        for page in ("selfsame-cli.1", "selfsame.1"):
            header = roff_text(page).splitlines()[0]
            self.assertIn(f'"Selfsame {VERSION}"', header, page)
        with open(os.path.join(SOURCE, "data", "io.github.selfsame.Selfsame.metainfo.xml")) as file:
            newest = re.search(r'<release version="([^"]+)"', file.read()).group(1)
        self.assertEqual(newest, VERSION)
        with open(os.path.join(PACKAGING, "deb", "changelog")) as file:
            self.assertTrue(file.readline().startswith(f"selfsame ({VERSION})"))


class ScreenshotsTest(unittest.TestCase):
    def test_the_metainfo_shows_pictures_the_repository_holds(self):
        with open(os.path.join(SOURCE, "data", "io.github.selfsame.Selfsame.metainfo.xml")) as file:
            images = re.findall(r"<image[^>]*>([^<]+)</image>", file.read())
        self.assertTrue(images)
        for url in images:
            with self.subTest(url):
                self.assertRegex(url, r"^https://.*/docs/screenshots/[\w-]+\.png$")
                self.assertTrue(os.path.isfile(os.path.join(SOURCE, "docs", "screenshots", url.rsplit("/", 1)[1])))


@unittest.skipUnless(APP, "the desktop application is not built")
class ApplicationPageTest(unittest.TestCase):
    def test_manual_page_describes_every_option(self):
        result = sandbox.run([APP, "--help"])
        self.assertEqual(result.returncode, 0, result.stderr)
        options = set(re.findall(r"(?<![\w-])--?[a-z][a-z0-9-]*", result.stdout.split("Arguments:")[0]))
        page = roff_text("selfsame.1")
        self.assertTrue(options)
        for option in options:
            self.assertRegex(page, rf"(?<![\w-]){re.escape(option)}(?![\w-])", option)


if __name__ == "__main__":
    sandbox = Sandbox()
    try:
        outcome = unittest.main(argv=sys.argv[:1], exit=False, verbosity=2).result
    finally:
        sandbox.remove()
    sys.exit(0 if outcome.wasSuccessful() else 1)
