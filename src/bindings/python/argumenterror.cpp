#include <sbkpython.h>

// The generated functions call these by the names of the functions that they extend.
#undef returnWrongArguments
#undef returnWrongArguments_MinusOne
#undef returnWrongArguments_Zero
#undef setErrorAboutWrongArguments
#include <shiboken.h>
#include <signature.h>

#include <algorithm>
#include <string>

namespace {

// The signature of "vantorslider.SliderEditFrame.setRange": "(self, min: int, max: int) -> None".
// A new reference, or null.
PyObject *signatureOf(const std::string &function)
{
    const auto module = function.find('.');
    PyObject *object = PyImport_ImportModule(function.substr(0, module).c_str());
    for (std::size_t start = module + 1; object && start < function.size();) {
        const std::size_t end = std::min(function.find('.', start), function.size());
        const std::string name = function.substr(start, end - start);
        PyObject *member = PyObject_GetAttrString(object, name.c_str());
        Py_DECREF(object);
        object = member;
        start = end + 1;
    }
    PyObject *signatures = PyImport_ImportModule("shibokensupport.signature");
    PyObject *signature = nullptr;
    if (object && signatures)
        signature = PyObject_CallMethod(signatures, "get_signature", "O", object);
    Py_XDECREF(signatures);
    Py_XDECREF(object);
    PyErr_Clear();
    return signature;
}

// The generator's message has the types of the arguments, and this one also their names.
void nameArguments(const std::string &function)
{
    PyObject *type = nullptr;
    PyObject *error = nullptr;
    PyObject *traceback = nullptr;
    PyErr_Fetch(&type, &error, &traceback);
    PyErr_NormalizeException(&type, &error, &traceback);
    if (PyObject *signature = signatureOf(function)) {
        PyObject *message = PyUnicode_FromFormat("%S\nArguments: %S", error, signature);
        PyObject *values = PyTuple_Pack(1, message);
        PyObject_SetAttrString(error, "args", values);
        Py_DECREF(values);
        Py_DECREF(message);
        Py_DECREF(signature);
    }
    PyErr_Restore(type, error, traceback);
}

} // namespace

namespace Shiboken {

#ifdef VANTORSLIDER_PYSIDE6

namespace {

// The function's name is without its class if there is a type.
std::string fullName(const char *function, const Module::TypeInitStruct &type)
{
    return type.fullName ? std::string(type.fullName) + '.' + function : function;
}

} // namespace

PyObject *returnErrorNamingArguments(PyObject *arguments, const char *function, PyObject *info,
                                     Module::TypeInitStruct type)
{
    returnWrongArguments(arguments, function, info, type);
    nameArguments(fullName(function, type));
    return nullptr;
}

int returnErrorNamingArguments_MinusOne(PyObject *arguments, const char *function, PyObject *info,
                                        Module::TypeInitStruct type)
{
    returnErrorNamingArguments(arguments, function, info, type);
    return -1;
}

int returnErrorNamingArguments_Zero(PyObject *arguments, const char *function, PyObject *info,
                                    Module::TypeInitStruct type)
{
    returnErrorNamingArguments(arguments, function, info, type);
    return 0;
}

#else

void setErrorNamingArguments(PyObject *arguments, const char *function, PyObject *info)
{
    setErrorAboutWrongArguments(arguments, function, info);
    nameArguments(function);
}

#endif

} // namespace Shiboken
