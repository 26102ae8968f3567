#pragma once

// What the guide's samples take for granted: the headers, and a host with editors
// of the names that the samples use.
#include <cropeditframe.h>
#include <layouteditframe.h>
#include <maskeditframe.h>
#include <recteditframe.h>
#include <rgballeditframe.h>
#include <rgbeditframe.h>
#include <rgbopacityeditframe.h>
#include <slidereditframe.h>
#include <slidereditframe_p.h>
#include <slidereditframedouble.h>

#include <QtGui/QStandardItemModel>
#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

using namespace Vantor::Widgets;

struct Host
{
    Host()
    {
        auto *layout = new QVBoxLayout(&window);
        gain.setObjectName("gain");
        for (QWidget *editor :
             std::initializer_list<QWidget *> {&gain, &brightness, &gamma, &rgb, &all, &opacity,
                                               &rect, &crop, &mask, &layoutEditor})
            layout->addWidget(editor);
        for (QAbstractSpinBox *field : std::initializer_list<QAbstractSpinBox *> {
                 gain.findChild<QSpinBox *>(), gamma.findChild<QDoubleSpinBox *>()})
            field->setProperty("isEntryRefused", true);
        for (RectEditFrame *editor : std::initializer_list<RectEditFrame *> {&rect, &crop}) {
            editor->setPositionLockEnable(true);
            editor->setSizeLockEnable(true, RectEditFrame::OffsetLock);
        }
    }

    QApplication &app = *qApp;
    QStandardItemModel model {1, 1};
    // Before its children, which leave it when they go.
    QWidget window;
    SliderEditFrame gain;
    SliderEditFrame brightness;
    SliderEditFrameDouble gamma;
    RGBEditFrame rgb;
    RGBAllEditFrame all;
    RGBOpacityEditFrame opacity;
    RectEditFrame rect;
    CropEditFrame crop;
    MaskEditFrame mask;
    LayoutEditFrame layoutEditor;
};

struct Sample
{
    const char *name; // page and line
    void (*run)();
};

// In the file that is made of the pages.
extern const QVector<Sample> samples;
