#pragma once

#include "page.h"

// Tints the picture with the three colour editors.
class ColourPage : public Page
{
    Q_OBJECT

public:
    ColourPage(EditHistory *history, LogPane *log);

    void clear(Edits &edits, const QSize &size) const override;

private:
    void addGain();
    void addLift();
    void addWash();
};
