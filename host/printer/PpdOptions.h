// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PpdFile.h"

namespace host {

/// What a parameter of a free choice takes.
enum class PpdParameterKind {
    Integer,
    Real,
    Points,   ///< a length; numbers in points
    Text,     ///< any characters
    Password, ///< any characters, not to be shown
    Passcode, ///< digits, not to be shown
};

/// A parameter of a free choice, with the value that it has now.
struct PpdParameter {
    QByteArray name;
    QString text;
    PpdParameterKind kind = PpdParameterKind::Real;
    /// Of the number, or of the count of characters.
    double minimum = 0;
    double maximum = 0;
    /// The value of a number, within its limits.
    double number = 0;
    /// The value of the others; may be too short when none was ever given.
    QString characters = {};

    bool isNumber() const { return kind <= PpdParameterKind::Points; }
    /// Whether the job can carry the value as it is.
    bool isComplete() const;
};

/// A choice under its PPD name, byte for byte, with its text for people.
struct PpdChoice {
    QByteArray name;
    QString text;
};

enum class PpdOptionKind { Boolean, PickOne, PickMany };

/// An option of the PPD with all its choices.
struct PpdOption {
    QByteArray keyword;
    QString text;
    PpdOptionKind kind = PpdOptionKind::PickOne;
    /// Without the entry that stands for a free choice.
    std::vector<PpdChoice> choices;
    /// The text of the entry for a free choice; nothing when the option has none.
    std::optional<QString> freeText;
    /// The choice that the PPD names as default, which need not be one that it has.
    QByteArray defaultChoice = {};
};

/// A group of options, in the PPD's order.
struct PpdGroup {
    QByteArray name;
    QString text;
    /// The options say what the printer is fitted with, and nothing about a job.
    bool isInstallable = false;
    std::vector<QByteArray> keywords;
};

/// One side of a constraint as the PPD spells it; an empty choice stands for every choice but the "off" one.
struct PpdConstraintSide {
    QByteArray keyword;
    QByteArray choice;
};
/// Choices that exclude each other; mostly two.
using PpdConstraint = std::vector<PpdConstraintSide>;

/// Reads the options of a PPD, in the language that it is localized to, and what is marked in it. Cheap to
/// make; the PPD is borrowed.
class PpdOptions {
public:
    explicit PpdOptions(const PpdFile &ppd);

    /// The groups that have options, those of subgroups among them.
    std::vector<PpdGroup> groups() const;
    /// The option; nothing when the PPD lacks it.
    std::optional<PpdOption> option(const QByteArray &keyword) const;
    /// Whether there is more than one thing to choose; false when the PPD lacks the option.
    bool canBeChanged(const QByteArray &keyword) const;
    /// The parameters of the option's free choice, in the PPD's order; empty when it has none.
    std::vector<PpdParameter> parameters(const QByteArray &keyword) const;
    /// The choice that the PPD names as default, which need not be one that it has; empty when the PPD lacks
    /// the option.
    QByteArray defaultChoice(const QByteArray &keyword) const;
    /// What is marked, in the PPD's order: for most options one choice, or none where the PPD's default is
    /// no choice that it has.
    std::vector<QByteArray> markedChoices(const QByteArray &keyword) const;
    /// The UIConstraints, NonUIConstraints and cupsUIConstraints, in the PPD's order, whether or not it has
    /// the options and choices that they name.
    std::vector<PpdConstraint> constraints() const;

private:
    const PpdFile &m_ppd;
};

/// The free choice with these values as a job carries it: "Custom.VALUE", or "{Name=VALUE Name=VALUE}" for
/// several parameters and for texts with characters that have a meaning to servers. Lengths in millimetres.
QByteArray freeChoiceValue(const std::vector<PpdParameter> &parameters);

} // namespace host
