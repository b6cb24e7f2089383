// SPDX-License-Identifier: Apache-2.0
#pragma once

class QLocale;

namespace dialog {
inline namespace translations {

/// Turns the texts of dialog and host into the locale's language, where there is a catalogue, and Qt's own
/// texts too where they are installed. Call once, when the application exists.
void installTranslations(const QLocale &locale);

} // namespace translations
} // namespace dialog
