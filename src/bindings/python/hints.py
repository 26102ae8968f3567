"""Writes the type hints of the built module, with the documentation of the headers.

hints.py FOLDER_OF_MODULE HEADER... writes FOLDER_OF_MODULE/__init__.pyi
"""

import enum
import inspect
import os
import sys
import textwrap

import headerdocs

HEAD = '''"""Composite editors for numeric parameters, for {pyside}."""

import enum
import typing

from {pyside} import QtCore, QtGui, QtWidgets

__version__: str
'''


class Hints:
    def __init__(self, module, headers):
        self.module = module
        self.documentation = headerdocs.documentation(headers)
        self.references = headerdocs.references(headers)
        self.lines = []

    def text(self):
        self.pyside = self.module.SliderEditFrame.__base__.__module__.partition(".")[0]
        widget = sys.modules[self.pyside + ".QtWidgets"].QWidget
        self.lines = HEAD.format(pyside=self.pyside).splitlines()
        for name, value in sorted(vars(self.module).items()):
            if is_enumeration(value):
                self.add_enumeration(name, value, "")
        for name, value in sorted(vars(self.module).items()):
            if inspect.isroutine(value):
                self.lines += ["", ""]
                self.add_function("", name, value, "")
        editors = [
            value
            for value in vars(self.module).values()
            if isinstance(value, type) and issubclass(value, widget)
        ]
        for editor in sorted(editors, key=lambda editor: (len(editor.__mro__), editor.__name__)):
            self.add_class(editor)
        return "\n".join(self.lines) + "\n"

    def add_documentation(self, name, indent):
        text = self.documentation.get(name, "")
        if text:
            quoted = '"""' + text + ('\n"""' if "\n" in text else '"""')
            self.lines.append(textwrap.indent(quoted, indent))
        return text

    def add_enumeration(self, name, value, owner):
        indent = "    " if owner else ""
        # All enumerations of PySide2 are numbers that can be combined.
        is_choice = issubclass(value, enum.Enum) and not issubclass(value, enum.IntFlag)
        base = "enum.Enum" if is_choice else "enum.IntFlag"
        self.lines += ["", f"{indent}class {name}({base}):"]
        self.add_documentation(owner + name, indent + "    ")
        members = members_of(value)
        self.lines += [f"{indent}    {member} = {int_of(item)}" for member, item in members.items()]
        scope = getattr(self.module, owner[:-1]) if owner else self.module
        self.lines += [""] + [
            f"{indent}{member} = {name}.{member}" for member in members if hasattr(scope, member)
        ]
        if not owner and hasattr(self.module, name + "s"):
            self.lines.append(f"{name}s = {name}")

    def add_class(self, editor):
        base_name = self.spelled(editor.__base__)
        self.lines += ["", "", f"class {editor.__name__}({base_name}):"]
        self.add_documentation(editor.__name__, "    ")
        members = {name: value for name, value in vars(editor).items() if not name.startswith("_")}
        for name, value in members.items():
            if is_enumeration(value):
                self.add_enumeration(name, value, editor.__name__ + ".")
        self.lines.append("")
        for name, value in members.items():
            if is_signal(value):
                self.lines.append(f"    {name.partition('(')[0]}: typing.ClassVar[QtCore.Signal]")
        self.lines += [
            "",
            "    def __init__(",
            "        self, parent: typing.Optional[QtWidgets.QWidget] = ..., **properties: typing.Any",
            "    ) -> None:",
        ]
        if not self.add_documentation(f"{editor.__name__}.{editor.__name__}", "        "):
            self.lines.append("        ...")
        for name, value in members.items():
            # The others are handlers of events, and what the class hides of its base.
            is_documented = f"{editor.__name__}.{name}" in self.documentation
            if is_documented and inspect.isroutine(value) and not is_signal(value):
                self.lines.append("")
                self.add_function(editor.__name__ + ".", name, value, "    ")

    def add_function(self, owner, name, function, indent):
        signatures = get_signature(function)
        if not isinstance(signatures, list):
            signatures = [signatures]
        spelled = [self.signature(owner + name, signature) for signature in signatures if signature]
        for signature in spelled:
            if len(spelled) > 1:
                self.lines.append(indent + "@typing.overload")
            self.lines.append(f"{indent}def {name}{signature}:")
            if not self.add_documentation(owner + name, indent + "    "):
                self.lines.append(indent + "    ...")

    def signature(self, name, signature):
        parameters = []
        for parameter in signature.parameters.values():
            text = parameter.name
            if parameter.annotation is not parameter.empty:
                text += ": " + self.spelled(parameter.annotation)
            if parameter.default is not parameter.empty:
                text += " = ..."
            parameters.append(text)
        result = self.spelled(signature.return_annotation)
        if name.endswith(".validate"):
            result = f"typing.Tuple[{result}, str, int]"
        elif name in self.references:
            result = "typing.Tuple[" + ", ".join(["int"] * self.references[name]) + "]"
        return f"({', '.join(parameters)}) -> {result}"

    def spelled(self, annotation):
        text = inspect.formatannotation(annotation)
        return text.replace(self.module.__name__ + ".", "").replace(self.pyside + ".", "")


def is_enumeration(value):
    return isinstance(value, type) and (issubclass(value, enum.Enum) or type(value).__name__ == "EnumMeta")


def is_signal(value):
    return type(value).__name__ == "Signal"


def members_of(enumeration):
    if issubclass(enumeration, enum.Enum):
        return dict(enumeration.__members__)
    return dict(enumeration.values)


def int_of(member):
    return member.value if isinstance(member, enum.Enum) else int(member)


def main(folder, headers):
    sys.path.insert(0, os.path.dirname(os.path.abspath(folder)))
    import vantorslider

    global get_signature
    from shibokensupport.signature import get_signature

    with open(os.path.join(folder, "__init__.pyi"), "w", encoding="utf-8") as hints:
        hints.write(Hints(vantorslider, headers).text())
    # Says that the hints are part of the package.
    open(os.path.join(folder, "py.typed"), "w", encoding="utf-8").close()


main(sys.argv[1], sys.argv[2:])
