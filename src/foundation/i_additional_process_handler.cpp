#include "foundation/i_additional_process_handler.h"

namespace Korvane {

IAdditionalProcessHandler::IAdditionalProcessHandler() = default;

IAdditionalProcessHandler::IAdditionalProcessHandler(const IAdditionalProcessHandler& other) =
    default;

IAdditionalProcessHandler& IAdditionalProcessHandler::operator=(const IAdditionalProcessHandler&) =
    default;

IAdditionalProcessHandler::~IAdditionalProcessHandler() = default;

}  // namespace Korvane
