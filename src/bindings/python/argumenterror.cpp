#include <sbkpython.h>

// The generated functions call it by the name of the function that it extends.
#undef setErrorAboutWrongArguments
#include <shiboken.h>
#include <signature.h>

#include <string>

namespace {

// The signature of "vantorslider.SliderEditFrame.setRange": "(self, min: int, max: int) -> None".
std::string signatureOf(const std::string &function)
{
    const auto module = function.find('.');
    PyObject *object = PyImport_ImportModule(function.substr(0, module).c_str());
    for (auto start = module; object && start != std::string::npos;) {
        const auto end = function.find('.', start + 1);
        PyObject *member =
            PyObject_GetAttrString(object, function.substr(start + 1, end - start - 1).c_str());
        Py_DECREF(object);
        object = member;
        start = end;
    }
    PyObject *signature = object ? PyObject_GetAttrString(object, "__signature__") : nullptr;
    PyObject *text = signature ? PyObject_Str(signature) : nullptr;
    const char *characters = text ? PyUnicode_AsUTF8(text) : nullptr;
    const std::string result = characters ? characters : "";
    Py_XDECREF(text);
    Py_XDECREF(signature);
    Py_XDECREF(object);
    PyErr_Clear();
    return result;
}

} // namespace

namespace Shiboken {

// The generator's message has the types of the arguments, and this one also their names.
void setErrorNamingArguments(PyObject *arguments, const char *function, PyObject *info)
{
    setErrorAboutWrongArguments(arguments, function, info);
    PyObject *type = nullptr;
    PyObject *error = nullptr;
    PyObject *traceback = nullptr;
    PyErr_Fetch(&type, &error, &traceback);
    PyErr_NormalizeException(&type, &error, &traceback);
    const std::string signature = signatureOf(function);
    PyObject *message = PyUnicode_FromFormat("%S\nArguments: %s", error, signature.c_str());
    PyObject *values = PyTuple_Pack(1, message);
    if (!signature.empty())
        PyObject_SetAttrString(error, "args", values);
    Py_XDECREF(values);
    Py_XDECREF(message);
    PyErr_Restore(type, error, traceback);
}

} // namespace Shiboken
