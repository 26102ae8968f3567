#pragma once

// What the guide's samples assume: the headers, and a host with editors
// that have the names used in the samples.
#include <alignfields.h>
#include <alignlabels.h>
#include <applytheme.h>
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

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

using namespace Vantor::Widgets;

struct Host
{
    Host()
    {
        gain.setObjectName("gain");
        window.setLayout(new QVBoxLayout);
        for (auto *editor : window.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
            window.layout()->addWidget(editor);
        for (auto *field : window.findChildren<QAbstractSpinBox *>())
            field->setProperty("isEntryRefused", true);
        for (auto *editor : window.findChildren<RectEditFrame *>()) {
            editor->setPositionLockEnable(true);
            editor->setSizeLockEnable(true, RectEditFrame::OffsetLock);
        }
    }

    QApplication &app = *qApp;
    QStandardItemModel model {1, 1};
    QWidget window;
    SliderEditFrame gain {&window};
    SliderEditFrame brightness {&window};
    SliderEditFrameDouble gamma {&window};
    RGBEditFrame rgb {&window};
    RGBAllEditFrame all {&window};
    RGBOpacityEditFrame opacity {&window};
    RectEditFrame rect {&window};
    CropEditFrame crop {&window};
    MaskEditFrame mask {&window};
    LayoutEditFrame layoutEditor {&window};
};

struct Sample
{
    const char *name; // page and line
    void (*run)();
};

// Defined in the file that is generated from the pages.
extern const QVector<Sample> samples;
