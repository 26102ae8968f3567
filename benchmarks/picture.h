#pragma once

#include "comparison.h"

// What the gallery takes to show a slider's move in a large picture, at several zooms.
void comparePicture(std::vector<Figure> &figures);
