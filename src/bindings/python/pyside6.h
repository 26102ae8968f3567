#pragma once

#include <sbkpython.h>

#include <shiboken.h>

// What the generator of PySide6 leaves undone.

// Replaces an enumeration of the module by one whose values combine with "|": the generator makes
// flags only of the enumerations of classes. As in C++ and PySide2, the values are also in the
// scope of their enumeration, and EntryOptions is another name of EntryOption. The types are the
// generator's for the enumeration and for its QFlags.
void makeFlags(PyObject *module, const char *name, Shiboken::Module::TypeInitStruct &option,
               Shiboken::Module::TypeInitStruct &options);

// Names the enumerations in the signatures of the constructors; without it the first look at one
// prints a warning.
void nameEnumerations(PyObject *module);
