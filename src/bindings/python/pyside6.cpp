#include "pyside6.h"

namespace {

const char source[] = R"(
import enum
from shibokensupport.signature.mapping import type_map

def make_flags(module, name):
    scope = vars(module)
    values = {key: option.value for key, option in scope[name].__members__.items()}
    flags = enum.IntFlag(name, values, module=module.__name__)
    scope.update(flags.__members__)
    scope[name] = scope[name + "s"] = flags
    return flags

def name_enumerations(module):
    for row in (module.SliderEditFrame, module.SliderEditFrameDouble):
        type_map["Vantor.Widgets." + row.__name__ + ".SliderScale"] = row.SliderScale
)";

// The references stay: a module is never unloaded.
PyObject *function(const char *name)
{
    static PyObject *const scope = [] {
        PyObject *const names = PyDict_New();
        PyDict_SetItemString(names, "__builtins__", PyEval_GetBuiltins());
        PyEval_EvalCode(Py_CompileString(source, "pyside6.cpp", Py_file_input), names, names);
        return names;
    }();
    return PyDict_GetItemString(scope, name);
}

} // namespace

void makeFlags(PyObject *module, const char *name, Shiboken::Module::TypeInitStruct &option,
               Shiboken::Module::TypeInitStruct &options)
{
    auto *const flags = reinterpret_cast<PyTypeObject *>(
        PyObject_CallFunction(function("make_flags"), "Os", module, name));
    const auto *const own = PepType_SETP(reinterpret_cast<SbkEnumType *>(option.type));
    Shiboken::Enum::setTypeConverter(flags, own->converter, own->flagsConverter);
    option.type = flags;
    options.type = flags;
}

void nameEnumerations(PyObject *module)
{
    Py_XDECREF(PyObject_CallFunction(function("name_enumerations"), "O", module));
}
