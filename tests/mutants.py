"""Applies the faults of mutants.txt, one at a time, and prints which test functions fail.

tools/mutants runs it with a copy of the source tree to modify. It prints each fault with
the functions that fail and their data rows, and at the end the matrix of functions and
faults: "A" if only this function detects the fault, "#" if others do, too.

With --random it applies small faults at random places of the library instead, and prints
the share that is caught. The first program that fails catches a fault.
"""

import argparse
import collections
import concurrent.futures
import json
import os
import pathlib
import random
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


Mutant = collections.namedtuple("Mutant", "number path offset old new")

# What a random fault replaces, and by what.
OPERATORS = {" < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ",
             " != ": " == ", " && ": " || ", " || ": " && ", " + ": " - ", " - ": " + ",
             " * ": " / ", " / ": " * ", " += ": " -= ", " -= ": " += ", "++": "--", "--": "++",
             "true": "false", "false": "true", "qMin(": "qMax(", "qMax(": "qMin("}
OPERATOR = re.compile("|".join(rf"\b{re.escape(old)}" if old[0].isalpha() else re.escape(old)
                               for old in OPERATORS))
NUMBER = re.compile(r"(?<![\w.])\d+(?![\w.])")
CONDITION = re.compile(r"(?<=^if \()(.+)(?=\) \{$)")
NEGATION = re.compile(r"(?<![\w)\]])!(?=[\w(])")
# A call or an assignment that is a whole line; nothing that declares or returns.
STATEMENT = re.compile(r"^(?!return\b|using\b|delete\b)[\w:.>*()\[\]-]+(?:\(.*\)| [-+|&]?= .+);$")
NO_CODE = re.compile(r"^\s*(?:#|//|/?\*|static_assert|Q_[A-Z]+|using |friend |template |class )")


def changes_of(line):
    """The start, old and new text of each small fault that the line can have."""
    start = len(line) - len(line.lstrip())
    code = line.strip()
    for match in OPERATOR.finditer(code):
        yield start + match.start(), match.group(), OPERATORS[match.group()]
    for match in NUMBER.finditer(code):
        yield start + match.start(), match.group(), str(int(match.group()) + 1)
    for match in NEGATION.finditer(code):
        yield start + match.start(), "!", ""
    for match in CONDITION.finditer(code):
        yield start + match.start(), match.group(), f"!({match.group()})"
    if STATEMENT.match(code):
        yield start, code, ";"


def random_mutants(source, seed):
    """All small faults of the library in an order that the seed determines."""
    mutants = []
    for path in sorted((source / LIBRARY).glob("*")):
        if path.suffix != ".cpp" and not path.name.endswith("_p.h"):
            continue
        offset = 0
        in_comment = False
        for line in path.read_text(encoding="utf-8").splitlines(keepends=True):
            in_comment = in_comment or line.lstrip().startswith("/*")
            code = re.sub(r'"(?:[^"\\]|\\.)*"|//.*', lambda text: "\0" * len(text.group()),
                          line.rstrip("\n"))
            if not in_comment and not NO_CODE.match(line):
                mutants += [Mutant(0, path, offset + start, line[start:start + len(old)], new)
                            for start, old, new in changes_of(code) if "\0" not in new]
            in_comment = in_comment and "*/" not in line
            offset += len(line)
    random.Random(seed).shuffle(mutants)
    return [mutant._replace(number=number) for number, mutant in enumerate(mutants, 1)]


def read_mutants(source):
    lines = (source / "tests/mutants.txt").read_text(encoding="utf-8").splitlines()
    for number, line in enumerate(lines, 1):
        if line and not line.startswith("#"):
            file, old, new = (part.strip() for part in line.split(" | "))
            path = source / file if "/" in file else source / LIBRARY / file
            text = path.read_text(encoding="utf-8")
            if text.count(old) != 1:
                sys.exit(f"mutants.txt:{number}: «{old}» stands {text.count(old)} times in {file}")
            yield Mutant(number, path, text.index(old), old, "" if new == "-" else new)


def builds(source, programs, jobs):
    targets = [name for name, _, _ in programs]
    return subprocess.run(["ninja", "-C", "build", f"-j{jobs}"] + targets, cwd=source,
                          stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL).returncode == 0


def read_programs(source, pattern):
    """Name, command and functions of each program; the functions are not known yet."""
    # Without the repetitions in other resolutions.
    listing = subprocess.run(["ctest", "--test-dir", "build", "-LE", "packaging", "-R", pattern,
                              "-E", "dpi$", "--show-only=json-v1"], cwd=source, check=True,
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


def try_mutant(source, mutant, programs, jobs, is_first_enough):
    """Builds and tests with the fault. Nothing else remains changed."""
    chosen = programs_for(mutant.path.name, programs)
    text = mutant.path.read_text(encoding="utf-8")
    end = mutant.offset + len(mutant.old)
    mutant.path.write_text(text[:mutant.offset] + mutant.new + text[end:], encoding="utf-8")
    is_built = builds(source, chosen, jobs)
    failures = {}
    if is_built:
        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            runs = [pool.submit(run, program) for program in chosen]
            for finished in concurrent.futures.as_completed(runs):
                if not finished.cancelled():
                    failures.update(finished.result())
                if failures and is_first_enough:
                    for waiting in runs:
                        waiting.cancel()
    mutant.path.write_text(text, encoding="utf-8")
    verdict = "killed" if failures else "SURVIVES" if is_built else "does not compile"
    line = text.count("\n", 0, mutant.offset) + 1
    print(f"{mutant.number:3} {verdict:16} {mutant.path.name}:{line}: "
          f"{mutant.old} -> {mutant.new or 'nothing'}")
    for function, rows in failures.items():
        print(f"      {function}({'; '.join(rows)})")
    sys.stdout.flush()
    return {"line": mutant.number, "file": mutant.path.name, "at": line, "old": mutant.old,
            "new": mutant.new, "verdict": verdict, "failures": failures}


def print_share(results, harmless):
    """Of the faults that compile, without those that nobody can notice."""
    counted = [result for result in results
               if result["verdict"] != "does not compile" and result["line"] not in harmless]
    survivors = [result["line"] for result in counted if result["verdict"] != "killed"]
    caught = len(counted) - len(survivors)
    print(f"{caught} of {len(counted)} random faults caught, "
          f"{100 * caught / max(1, len(counted)):.0f} %; not: {survivors}")
    return survivors


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("source", type=pathlib.Path)
    parser.add_argument("lines", nargs="*", type=int,
                        help="lines, or numbers of random faults, to try; all if none is given")
    parser.add_argument("-R", dest="programs", default=".", metavar="REGEX",
                        help="only the tests with such names, as for ctest")
    parser.add_argument("-j", dest="jobs", type=int, default=2)
    parser.add_argument("--json", type=pathlib.Path, metavar="FILE", help="the results once more")
    parser.add_argument("--check", action="store_true",
                        help="only whether each fault of mutants.txt has its place in the code")
    parser.add_argument("--random", type=int, metavar="COUNT",
                        help="so many faults at random places that compile")
    parser.add_argument("--seed", type=int, default=1, help="determines the random places")
    parser.add_argument("--harmless", type=int, nargs="+", default=[], metavar="NUMBER",
                        help="random faults that nobody can notice: they are not tried")
    arguments = parser.parse_intermixed_args()
    source = arguments.source
    mutants = (random_mutants(source, arguments.seed) if arguments.random
               else list(read_mutants(source)))
    if arguments.check:
        return 0
    for line in arguments.lines:
        if line not in (mutant.number for mutant in mutants):
            sys.exit(f"mutants.txt:{line}: no fault stands in this line")
    if arguments.lines:
        mutants = [mutant for mutant in mutants if mutant.number in arguments.lines]
    print("== Building and testing without a fault", flush=True)
    # If only the shared library changes, the tests need not be linked again.
    subprocess.run(["cmake", "-S", ".", "-B", "build", "-G", "Ninja",
                    "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0",
                    "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON", "-DVANTORSLIDER_BUILD_EXAMPLES=OFF"],
                   cwd=source, check=True, stdout=subprocess.DEVNULL)
    if not builds(source, [], arguments.jobs):
        sys.exit("It does not build without any fault.")
    programs = [with_functions(program)
                for program in read_programs(source, arguments.programs)]
    if arguments.random:
        programs.reverse()  # a fault that is caught soon need not wait for the longest

    results = []
    for mutant in mutants:
        if mutant.number in arguments.harmless:
            continue
        results.append(try_mutant(source, mutant, programs, arguments.jobs,
                                  bool(arguments.random)))
        if arguments.json:
            arguments.json.write_text(json.dumps(results, indent=1), encoding="utf-8")
        built = [result for result in results if result["verdict"] != "does not compile"]
        if arguments.random and len(built) == arguments.random:
            break

    if arguments.random:
        return 1 if print_share(results, arguments.harmless) else 0
    print_matrix(results, [function for name, _, functions in programs
                           for function in functions or [name]])
    survivors = [result["line"] for result in results if result["verdict"] != "killed"]
    print(f"{len(mutants) - len(survivors)} of {len(mutants)} killed; not: {survivors}")
    return 1 if survivors else 0


if __name__ == "__main__":
    sys.exit(main())
