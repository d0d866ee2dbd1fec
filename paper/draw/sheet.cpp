#include "papersheet.h"
#include "registersheet.h"

std::unique_ptr<Sheet> sheetOf(const Strip &strip, bool marks)
{
    if (strip.kind == paper::StripKind::Register)
        return std::make_unique<RegisterSheet>(strip);
    return std::make_unique<PaperSheet>(strip, marks);
}
