#pragma once

namespace Vantor::Widgets::Internal {

// What a screen reader finds in a row, beside Qt's own interfaces of its children: the value at the
// slider, whose own interface tells the position, such as 25 for 0.25, and the action "Reset".
void provideAccessibleRows();

} // namespace Vantor::Widgets::Internal
