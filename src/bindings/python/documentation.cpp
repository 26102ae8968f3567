// The definitions of functions are no part of the limited interface, which PySide6 asks for.
#undef Py_LIMITED_API
#include <sbkpython.h>

#include "documentation.h"

namespace {

struct Documentation
{
    const char *owner; // the class, or null
    const char *name; // the function, or null for the text of the class
    const char *text;
};

const Documentation documentation[] = {
#include "documentation.inc"
};

// The generator leaves the documentation of its definitions empty.
PyMethodDef *definitionOf(PyObject *function)
{
    if (PyCFunction_Check(function))
        return reinterpret_cast<PyCFunctionObject *>(function)->m_ml;
    if (Py_TYPE(function) == &PyMethodDescr_Type)
        return reinterpret_cast<PyMethodDescrObject *>(function)->d_method;
    return nullptr;
}

void setDocumentation(PyObject *owner, const Documentation &entry)
{
    if (!entry.name) {
        PyObject *text = PyUnicode_FromString(entry.text);
        PyObject_SetAttrString(owner, "__doc__", text);
        Py_XDECREF(text);
    } else if (PyObject *function = PyObject_GetAttrString(owner, entry.name)) {
        if (PyMethodDef *definition = definitionOf(function))
            definition->ml_doc = entry.text;
        Py_DECREF(function);
    }
    // What is private in C++ is documented there, and no part of the module.
    PyErr_Clear();
}

} // namespace

void setDocumentation(PyObject *module)
{
    for (const Documentation &entry : documentation) {
        if (!entry.owner) {
            setDocumentation(module, entry);
        } else if (PyObject *type = PyObject_GetAttrString(module, entry.owner)) {
            setDocumentation(type, entry);
            Py_DECREF(type);
        } else {
            PyErr_Clear();
        }
    }
}
