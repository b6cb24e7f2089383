// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobOptions.h"

#include <host/printer/PpdFile.h>

namespace host {

enum class ChoiceFailure {
    UnknownOption, ///< neither the printer nor the print server has it
    UnknownChoice, ///< the option does not have it
    UnknownPaper,  ///< the printer does not have it, or not in that size
    UnusablePaper, ///< no printer can print on the size that the PPD gives it
};
using ChoiceError = Failure<ChoiceFailure>;

/// Whether the printer can be told the choice: nothing, or what is wrong with it, naming the option and what
/// there is instead. Servers take any choice and ignore those that they do not know, so that labels come out
/// otherwise than asked for. Options of the print server, such as "job-hold-until", are not looked into.
std::optional<ChoiceError> checkChoice(const PpdFile &ppd, const JobChoice &choice);

/// What remains of choices when the queue's PPD is replaced by another.
struct CarriedChoices {
    /// Those that the new PPD has too; they are marked in it.
    std::vector<JobChoice> kept;
    /// Why each of the others is lost.
    std::vector<ChoiceError> lost;
};
CarriedChoices carryOverChoices(const std::vector<JobChoice> &choices, PpdFile &ppd);

} // namespace host
