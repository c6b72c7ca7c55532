// A field whose words choose what is shown.
#pragma once

#include <QLineEdit>
#include <QString>
#include <functional>

#include "display/display.h"

namespace corvane {

// When the operator pauses in typing, a screen reader says `result`, e.g. "12 of 47 match". Names the key that empties
// the field.
void makeFilterSpeak(QLineEdit& field, Display& display, std::function<QString()> result);

}  // namespace corvane
