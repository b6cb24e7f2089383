// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobOptions.h"

#include <host/printer/PpdFile.h>

namespace host {
inline namespace cups {
inline namespace jobs {

/// Why a choice cannot be set.
enum class ChoiceErrorKind {
    UnknownOption, ///< neither the printer nor the print server has the option
    UnknownChoice, ///< the option does not have the choice
    UnknownPaper,  ///< the printer does not have the paper, or not in that size
    UnusablePaper, ///< no printer can print on the size that the PPD defines
};
/// An error with its message for the user.
using ChoiceError = Failure<ChoiceErrorKind>;

/// Checks whether the printer has the choice. The error names the option and its available choices. Servers
/// accept any choice and ignore unknown ones, so that labels would be printed otherwise than requested. Does
/// not check the choices of the print server's own options, such as "job-hold-until".
Result<void, ChoiceError> checkChoice(const PpdFile &ppd, const JobChoice &choice);

/// The choices that remain when the queue's PPD is replaced by another.
struct CarriedChoices {
    /// The choices that the new PPD also has; they are marked in it.
    std::vector<JobChoice> kept;
    /// The errors of the choices that the new PPD does not have.
    std::vector<ChoiceError> lost;
};
/// Marks the choices in the new PPD, as far as it has them.
CarriedChoices carryOverChoices(const std::vector<JobChoice> &choices, PpdFile &ppd);

} // namespace jobs
} // namespace cups
} // namespace host
