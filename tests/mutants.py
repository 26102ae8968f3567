"""Applies the faults of mutants.txt, one at a time, and prints which test functions fail.

tools/mutants runs it with a copy of the source tree to modify. It prints each fault with
the functions that fail and their data rows, and at the end the matrix of functions and
faults: "A" if only this function detects the fault, "#" if others do, too.
"""

import argparse
import concurrent.futures
import json
import os
import pathlib
import re
import subprocess
import sys

LIBRARY = pathlib.Path("src/libs/vantorslider")
# Fewer random gestures: they find a fault soon, or not at all.
ENVIRONMENT = dict(os.environ, VANTORSLIDER_GESTURES="500", QTEST_FUNCTION_TIMEOUT="40000")
SECONDS = 120  # for one program
ENTERED = re.compile(r"^INFO   : (\w+::\w+)\(\) entering$", re.M)
FAILED = re.compile(r"^(?:FAIL!|XPASS|QFATAL) +: (\w+::\w+)\((.*?)\)(?: |$)", re.M)
# The tests that take half the time and test only the calculator field, and the
# prefixes of the names of files that can affect them.
CALCULATOR_PROGRAMS = {"tst_lineeditcal", "fuzz_corpus"}
CALCULATOR_FUNCTIONS = {"tst_Robustness::pastedTexts"}
CALCULATOR_FILES = re.compile("arithmetic|calculator|expression|hostwindow|qlineeditcal|scriptengine")


def read_mutants(source):
    lines = (source / "tests/mutants.txt").read_text(encoding="utf-8").splitlines()
    for number, line in enumerate(lines, 1):
        if line and not line.startswith("#"):
            file, old, new = (part.strip() for part in line.split(" | "))
            path = source / file if "/" in file else source / LIBRARY / file
            count = path.read_text(encoding="utf-8").count(old)
            if count != 1:
                sys.exit(f"mutants.txt:{number}: «{old}» stands {count} times in {file}")
            yield number, path, old, "" if new == "-" else new


def builds(source, programs, jobs):
    targets = [name for name, _, _ in programs]
    return subprocess.run(["ninja", "-C", "build", f"-j{jobs}"] + targets, cwd=source,
                          stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL).returncode == 0


def read_programs(source, pattern):
    """Name, command and functions of each program; the functions are not known yet."""
    listing = subprocess.run(["ctest", "--test-dir", "build", "-LE", "packaging", "-R", pattern,
                              "--show-only=json-v1"], cwd=source, check=True,
                             stdout=subprocess.PIPE).stdout
    tests = json.loads(listing)["tests"]
    programs = [(test["name"], test["command"], []) for test in tests]
    return sorted(programs, key=lambda program: program[0] != "tst_robustness")  # the longest


def run_once(command):
    """Whether the command succeeded, and its output."""
    try:
        process = subprocess.run(command, env=ENVIRONMENT, timeout=SECONDS,
                                 stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        is_good, output = process.returncode == 0, process.stdout
    except subprocess.TimeoutExpired as timeout:
        is_good, output = False, timeout.stdout or b""
    return is_good, output.decode(errors="replace")


def run(program):
    """The functions that fail, each with its data rows. If one of them crashes the
    program, the next ones run in a new process."""
    name, command, functions = program
    if not functions:
        return {} if run_once(command)[0] else {name: []}
    failures = {}
    while functions:
        is_good, output = run_once(command + ["-v1"]
                                   + [function.split("::")[1] for function in functions])
        for function, row in FAILED.findall(output):
            rows = failures.setdefault(function, [])
            if row not in rows:  # a crash is reported twice
                rows.append(row)
        if is_good or "Totals: " in output:
            break
        last = (ENTERED.findall(output) or functions)[-1]
        failures.setdefault(last, [])
        functions = functions[functions.index(last) + 1:] if last in functions else []
    return failures


def with_functions(program):
    name, command, _ = program
    is_test = name.startswith("tst_")
    is_good, output = run_once(command + ["-v1"] * is_test)
    if not is_good:
        sys.exit(f"{name} fails without any fault.")
    return name, command, [function for function in ENTERED.findall(output)
                           if not function.endswith("TestCase")]


def programs_for(file, programs):
    if file.endswith(".qss"):
        return [program for program in programs if program[0] == "tst_styles"]
    if CALCULATOR_FILES.match(file):
        return programs
    return [(name, command, [function for function in functions
                             if function not in CALCULATOR_FUNCTIONS])
            for name, command, functions in programs if name not in CALCULATOR_PROGRAMS]


def print_matrix(results, functions):
    width = max(len(function) for function in functions)
    print()
    for digits in zip(*(f"{result['line']:3}" for result in results)):
        print(" " * width, "".join(digits))
    for function in functions:
        marks = ["." if function not in result["failures"]
                 else "A" if len(result["failures"]) == 1 else "#" for result in results]
        alone = [result["line"] for result, mark in zip(results, marks) if mark == "A"]
        print(f"{function:{width}} {''.join(marks)} {alone or ''}")

    noticed = [list(result["failures"]) for result in results]
    nothing = [function for function in functions
               if not any(function in names for names in noticed)]
    print("\nNotice nothing:", *nothing)
    print("Nothing alone:", *(function for function in functions
                              if function not in nothing and [function] not in noticed))


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("source", type=pathlib.Path)
    parser.add_argument("lines", nargs="*", type=int, help="lines to try; all if none is given")
    parser.add_argument("-R", dest="programs", default=".", metavar="REGEX",
                        help="only the tests with such names, as for ctest")
    parser.add_argument("-j", dest="jobs", type=int, default=2)
    parser.add_argument("--json", type=pathlib.Path, metavar="FILE", help="the results once more")
    arguments = parser.parse_intermixed_args()
    source = arguments.source
    mutants = list(read_mutants(source))
    for line in arguments.lines:
        if line not in (mutant[0] for mutant in mutants):
            sys.exit(f"mutants.txt:{line}: no fault stands in this line")
    if arguments.lines:
        mutants = [mutant for mutant in mutants if mutant[0] in arguments.lines]
    print("== Building and testing without a fault", flush=True)
    # If only the shared library changes, the tests need not be linked again.
    subprocess.run(["cmake", "-S", ".", "-B", "build", "-G", "Ninja",
                    "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS=-O0 -g0",
                    "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON", "-DVANTORSLIDER_BUILD_EXAMPLES=OFF"],
                   cwd=source, check=True, stdout=subprocess.DEVNULL)
    if not builds(source, [], arguments.jobs):
        sys.exit("It does not build without any fault.")
    programs = [with_functions(program)
                for program in read_programs(source, arguments.programs)]

    results = []
    for number, path, old, new in mutants:
        chosen = programs_for(path.name, programs)
        text = path.read_text(encoding="utf-8")
        path.write_text(text.replace(old, new), encoding="utf-8")
        is_built = builds(source, chosen, arguments.jobs)
        failures = {}
        if is_built:
            with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
                for found in pool.map(run, chosen):
                    failures.update(found)
        path.write_text(text, encoding="utf-8")
        verdict = "killed" if failures else "SURVIVES" if is_built else "does not compile"
        print(f"{number:3} {verdict:16} {path.name}: {old} -> {new or 'nothing'}")
        for function, rows in failures.items():
            print(f"      {function}({'; '.join(rows)})")
        sys.stdout.flush()
        results.append({"line": number, "file": path.name, "old": old, "new": new,
                        "verdict": verdict, "failures": failures})

    print_matrix(results, [function for name, _, functions in programs
                           for function in functions or [name]])
    survivors = [result["line"] for result in results if result["verdict"] != "killed"]
    print(f"{len(mutants) - len(survivors)} of {len(mutants)} killed; not: {survivors}")
    if arguments.json:
        arguments.json.write_text(json.dumps(results, indent=1), encoding="utf-8")
    return 1 if survivors else 0


if __name__ == "__main__":
    sys.exit(main())
