"""The module has what the library exports, with documentation and type hints."""

import inspect
import pathlib
import re
import subprocess

import vantorslider

SOURCES = pathlib.Path(__file__).parents[2]
HEADERS = SOURCES / "src/libs/vantorslider"


def library():
    """The shared library that this process has loaded."""
    with open("/proc/self/maps", encoding="utf-8") as maps:
        return re.search(r"/\S*/libvantorslider\S*", maps.read())[0]


def exported_names():
    """(class or empty, name) of the exported functions."""
    symbols = subprocess.run(
        ["nm", "-DC", "--defined-only", library()], stdout=subprocess.PIPE, text=True, check=True
    ).stdout
    found = re.findall(r" [TW] Vantor::Widgets::(?:(\w+)::)?(\w+)\(", symbols)
    return sorted(set(found))


def public_part(class_name):
    """The source of a class without its private part."""
    for header in HEADERS.glob("*.h"):
        source = header.read_text(encoding="utf-8")
        found = re.search(r"class VANTORSLIDER_EXPORT %s :.*?\n};" % class_name, source, re.DOTALL)
        if found:
            return found[0].partition("\nprivate:")[0]
    raise LookupError(class_name)


def test_every_exported_name_is_there():
    names = exported_names()
    assert len(names) > 200
    for owner, name in names:
        if not owner:
            assert hasattr(vantorslider, name)
        elif re.search(r"\b%s\(" % name, public_part(owner)) and name != owner:
            assert hasattr(getattr(vantorslider, owner), name), owner + "." + name


def is_signal(member):
    return type(member).__name__ == "Signal"


def test_documentation():
    assert "labelled editor" in vantorslider.SliderEditFrame.__doc__
    assert "gives the labels" in vantorslider.alignLabels.__doc__.lower()
    assert "Call setValue() afterwards" in vantorslider.SliderEditFrame.setRange.__doc__
    for owner, name in exported_names():
        member = vars(getattr(vantorslider, owner, vantorslider)).get(name)
        part = public_part(owner).partition("\nprotected:")[0] if owner else name + "("
        if inspect.ismethoddescriptor(member) and name + "(" in part and not is_signal(member):
            assert member.__doc__, owner + "." + name


def test_version():
    cmake = (SOURCES / "CMakeLists.txt").read_text(encoding="utf-8")
    assert "VERSION %s " % vantorslider.__version__ in cmake
