#pragma once

// What the generator reads, and what its sources include: the public headers.
#include <alignfields.h>
#include <alignlabels.h>
#include <cropeditframe.h>
#include <layouteditframe.h>
#include <maskeditframe.h>
#include <recteditframe.h>
#include <reducetabstops.h>
#include <rgballeditframe.h>
#include <rgbeditframe.h>
#include <rgbopacityeditframe.h>
#include <slidereditframe.h>
#include <slidereditframe_p.h>
#include <slidereditframedouble.h>
