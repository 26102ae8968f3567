#pragma once

#include "page.h"

// Tints the picture with the three colour editors.
class ColourPage : public Page
{
    Q_OBJECT

public:
    ColourPage(EditHistory *history, LogPane *log);

private:
    void addGain();
    void addLift();
    void addWash();
};
