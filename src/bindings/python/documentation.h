#pragma once

struct _object; // PyObject

// Gives the classes and functions of the module the documentation of the headers.
void setDocumentation(_object *module);
