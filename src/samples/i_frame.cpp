#include "media/i_frame.h"

namespace Korvane::Media {

IFrame::IFrame() = default;

IFrame::IFrame(const IFrame&) = default;

IFrame& IFrame::operator=(const IFrame&) = default;

IFrame::~IFrame() = default;

}  // namespace Korvane::Media
