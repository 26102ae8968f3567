#pragma once

#include "recteditframe.h"

#include <QtCore/QObject>

namespace Vantor::Widgets::Internal {

// The four fields in order: x, y, width and height of a crop, or top, bottom, left and right
// margin of a mask.
struct FieldValues
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

struct LimitedField
{
    RectEditFrame::Type type;
    int FieldValues::*value;
};

constexpr LimitedField fieldX {RectEditFrame::X, &FieldValues::x};
constexpr LimitedField fieldY {RectEditFrame::Y, &FieldValues::y};
constexpr LimitedField fieldWidth {RectEditFrame::Width, &FieldValues::width};
constexpr LimitedField fieldHeight {RectEditFrame::Height, &FieldValues::height};

// Two fields whose sum has a limit.
struct LimitedPair
{
    LimitedField first;
    LimitedField second;
    int limit;

    LimitedPair reversed() const { return {second, first, limit}; }
};

// How the crop and the mask editor limit the sum of two fields, show the result and detect changes.
class LimitedFields : public QObject
{
public:
    explicit LimitedFields(RectEditFrame *editer) : m_pEditer(editer) { }

    void watchRows();
    bool eventFilter(QObject *watched, QEvent *event) override;

    // The values that the fields show.
    FieldValues values() const;
    // Stores the values that the program sets: the user's return to them is not reported.
    void setLast(const FieldValues &values) { m_last = values; }
    // Sets the allowed directions of both pairs: at the limit neither value may grow.
    void allowWithinLimits(const FieldValues &values);

protected:
    virtual LimitedPair horizontal() const = 0;
    virtual LimitedPair vertical() const = 0;

    // The user has set the first field of the pair to val. Shows the values, with that one at most
    // the limit minus the second field. Returns whether they differ from the last ones.
    bool limitAndShow(const LimitedPair &pair, int val);
    const FieldValues &last() const { return m_last; }

private:
    void allowWithinLimit(const LimitedPair &pair, const FieldValues &values);

    RectEditFrame *const m_pEditer;
    // Last values reported to the host or set by it.
    FieldValues m_last;
};

} // namespace Vantor::Widgets::Internal
