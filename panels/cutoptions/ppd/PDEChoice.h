// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <cups/ppd.h>

#include <memory>
#include <optional>
#include <vector>

/// One choice of a PPD option, with the two titles that a panel needs: the text for the user and the
/// keyword that goes into the job.
///
/// Wraps libcups's record without copying it: the PPD, which the dialog keeps open, must outlive the
/// wrapper. A choice list holds its wrappers by pointer, so that a panel can remember "the choice that
/// is set" by identity.
class PDEChoice {
public:
    /// A new wrapper of the choice, which must not be null.
    static std::unique_ptr<PDEChoice> choiceWithChoice(ppd_choice_t *choice);

    /// Wraps the choice, which must not be null.
    explicit PDEChoice(ppd_choice_t *choice);

    /// The choice's text for the user, decoded as UTF-8 (libcups converts every PPD to it); nothing when
    /// the text is not valid UTF-8. Decoded on the first call and kept.
    const std::optional<QString> &userTitle() const;

    /// The choice's keyword, decoded as ASCII, which PPD 4.3 asks keywords to be; nothing when it holds
    /// other bytes. Decoded on the first call and kept.
    const std::optional<QString> &ppdTitle() const;

    /// The wrapped record.
    ppd_choice_t *choice() const { return m_choice; }

    /// Whether this is the default written in the PPD file, whatever is marked now.
    bool isDefaultChoice() const;

    /// One line for logs: class, address, both titles, whether marked, and the place among the choices.
    QString description() const;

private:
    // An outer "nothing" means not decoded yet, an inner one a text that cannot be decoded.
    mutable std::optional<std::optional<QString>> m_userTitle;
    mutable std::optional<std::optional<QString>> m_ppdTitle;
    ppd_choice_t *m_choice;
};

/// The choices of one option in PPD order.
using PDEChoiceList = std::vector<std::unique_ptr<PDEChoice>>;

/// Whether the option's default, as written in the PPD file, is the keyword: compared over the 41 bytes
/// that libcups keeps of a keyword.
bool isDefaultOfOption(const ppd_option_t *option, const char *keyword);
