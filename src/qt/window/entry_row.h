// A field to type in, with its title before it and its keys behind.
#pragma once

#include <QLayout>
#include <vector>

#include "display/button.h"
#include "display/text_field.h"

namespace corvane {

// `example` stands in the field while it is empty.
QLayout* entryRow(TextField& field, const QString& example, const std::vector<Button*>& keys, ChangeQueue& queue);

}  // namespace corvane
