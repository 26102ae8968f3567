"""Makes the faults of mutants.txt, one at a time, and says which of them the tests miss.

Each line of it is one fault: file | text as it is | text that replaces it. Run by
tools/mutants with a copy of the source tree to break, and the numbers of the lines to
try; none: all.
"""

import os
import pathlib
import subprocess
import sys

LIBRARY = pathlib.Path("src/libs/vantorslider")
# Fewer random gestures: a fault that they find, they find soon.
ENVIRONMENT = dict(os.environ, VANTORSLIDER_GESTURES="500", QTEST_FUNCTION_TIMEOUT="60000")


def read_mutants(source):
    lines = (source / "tests/mutants.txt").read_text(encoding="utf-8").splitlines()
    for number, line in enumerate(lines, 1):
        if line and not line.startswith("#"):
            file, old, new = (part.strip() for part in line.split(" | "))
            yield number, file, old, "" if new == "-" else new


def succeeds(command, directory):
    return subprocess.run(command, cwd=directory, env=ENVIRONMENT, stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL).returncode == 0


def main():
    source = pathlib.Path(sys.argv[1])
    wanted = [int(argument) for argument in sys.argv[2:]]
    mutants = [mutant for mutant in read_mutants(source) if not wanted or mutant[0] in wanted]
    build = ["ninja", "-C", "build"]
    test = ["ctest", "--test-dir", "build", "-LE", "packaging", "-j2", "--stop-on-failure",
            "--timeout", "120"]
    subprocess.run(["cmake", "-S", ".", "-B", "build", "-G", "Ninja",
                    "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS=-O0 -g0",
                    "-DVANTORSLIDER_BUILD_EXAMPLES=OFF"],
                   cwd=source, check=True, stdout=subprocess.DEVNULL)
    if not succeeds(build, source) or not succeeds(test, source):
        sys.exit("The tests fail without any fault.")

    survivors = []
    for number, file, old, new in mutants:
        path = source / LIBRARY / file
        text = path.read_text(encoding="utf-8")
        if text.count(old) != 1:
            sys.exit(f"mutants.txt:{number}: «{old}» stands {text.count(old)} times in {file}")
        path.write_text(text.replace(old, new), encoding="utf-8")
        if not succeeds(build, source):
            verdict = "does not compile"
        elif succeeds(test, source):
            verdict = "SURVIVES"
        else:
            verdict = "killed"
        path.write_text(text, encoding="utf-8")
        print(f"{number:3} {verdict:16} {file}: {old} -> {new or 'nothing'}", flush=True)
        if verdict != "killed":
            survivors.append(number)
    print(f"{len(mutants) - len(survivors)} of {len(mutants)} killed; not: {survivors}")
    return 1 if survivors else 0


if __name__ == "__main__":
    sys.exit(main())
