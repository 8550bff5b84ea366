#pragma once

#include "model/DateTexts.h"
#include "platform/Clock.h"
#include "ui/common/FileExporter.h"

namespace aerolith {

/// What the views of one access point ask of the program around them. All of it outlives them.
struct DetailSurroundings
{
    const Clock& clock;
    const DateTexts& texts;
    FileExporter& exporter;
};

} // namespace aerolith
