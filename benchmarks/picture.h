#pragma once

#include "comparison.h"

// The time that the gallery needs to show a slider's move in a large picture, at several
// zoom levels.
void comparePicture(std::vector<Figure> &figures);
