// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/queues/Destination.h>
#include <host/printer/PpdOptions.h>

#include <functional>

namespace host {
inline namespace cups {
inline namespace jobs {

/// The IPP attribute for finishings (PWG 5100.1), such as cuts. For the options of a PPD that stand for
/// finishings, a job names both in agreement: the server of a driverless queue gives a job without this
/// attribute the printer's default, which its filters then prefer to the choices of the PPD.
inline constexpr const char *finishingsName = "finishings";

/// Returns the value of the attribute for a job: the finishings whose choices all are the job's, as numbers
/// separated by commas, or the number of "none". The function returns the job's choice of an option; absent
/// if it has none.
QByteArray finishingsOf(const std::vector<PpdFinishing> &finishings,
                        const std::function<std::optional<QByteArray>(const QByteArray &keyword)> &choiceOf);

/// Returns the choices of the PPD that a value of the attribute stands for: numbers or keywords, separated by
/// commas. Returns no choices if the PPD does not have one of the finishings; the value then is the server's
/// business.
std::vector<NamedValue> choicesOfFinishings(const PpdFile &ppd, const QByteArray &value);

} // namespace jobs
} // namespace cups
} // namespace host
