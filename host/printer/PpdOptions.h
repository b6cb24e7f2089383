// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PpdFile.h"

namespace host {
inline namespace printer {

/// The type of a custom option's parameter.
enum class PpdParameterKind {
    Integer,
    Real,
    Points,   ///< a length in points
    Text,     ///< any characters
    Password, ///< any characters, not to be shown
    Passcode, ///< digits, not to be shown
};

/// A parameter of a custom option, with its current value.
struct PpdParameter {
    /// The name in the PPD, and the text for the user.
    QByteArray name;
    QString text;
    /// The type of the value.
    PpdParameterKind kind = PpdParameterKind::Real;
    /// The limits of the number or of the number of characters.
    double minimum = 0;
    double maximum = 0;
    /// The value of a number, within the limits; 0 for the other kinds.
    double number = 0;
    /// The value of the other kinds; may be shorter than the minimum while no value has been set.
    QString characters = {};

    /// Whether the value is stored in number rather than in characters.
    bool isNumber() const { return kind <= PpdParameterKind::Points; }
    /// Whether a job can contain the value: the number of characters is within the limits.
    bool isComplete() const;
};

/// A choice: its name in the PPD, byte for byte, and its text for the user.
struct PpdChoice {
    QByteArray name;
    QString text;
};

/// Choices of several options: keyword and choice, each keyword once.
using PpdChoices = std::vector<std::pair<QString, QString>>;

/// The UI type of an option, as in *OpenUI. PickMany options can have several marked choices.
enum class PpdOptionKind { Boolean, PickOne, PickMany };

/// An option of the PPD with all its choices.
struct PpdOption {
    /// The keyword without its asterisk, and the text for the user.
    QByteArray keyword;
    QString text;
    PpdOptionKind kind = PpdOptionKind::PickOne;
    /// The choices without the one that stands for a custom value.
    std::vector<PpdChoice> choices;
    /// The text of the choice that stands for a custom value; absent if the option does not allow custom
    /// values.
    std::optional<QString> customText;
    /// The default choice of the PPD; the option need not have a choice of this name.
    QByteArray defaultChoice = {};
};

/// A group of options with its keywords in the order of the PPD.
struct PpdGroup {
    /// The name in the PPD, and the text for the user.
    QByteArray name;
    QString text;
    /// Whether the options describe installed accessories of the printer rather than the job
    /// (InstallableOptions).
    bool isInstallable = false;
    /// The keywords of the options, without asterisks.
    std::vector<QByteArray> keywords;
};

/// One option of a constraint as the PPD states it. An empty choice stands for every choice except the "off"
/// choice.
struct PpdConstraintSide {
    /// The keyword without its asterisk, and the name of the choice.
    QByteArray keyword;
    QByteArray choice;
};
/// Choices that conflict if all of them are selected; in most cases two.
using PpdConstraint = std::vector<PpdConstraintSide>;

/// A finishing of IPP (PWG 5100.1), and the choices of PPD options that stand for it.
struct PpdFinishing {
    /// The value of the IPP attribute "finishings", for example 60 for "trim-after-pages".
    int number = 0;
    /// The keyword of this value.
    QByteArray keyword;
    std::vector<std::pair<QByteArray, QByteArray>> choices;

    bool operator==(const PpdFinishing &) const = default;
};

/// The number of the finishing "none".
inline constexpr int noFinishing = 3;

/// Reads the options of a PPD in the language set by PpdFile::localize(), and their marked choices. Cheap to
/// construct. The PPD is not owned and must outlive this object.
class PpdOptions {
public:
    /// The options of this PPD.
    explicit PpdOptions(const PpdFile &ppd);

    /// The groups that have options. The options of subgroups are listed in the group that contains them.
    std::vector<PpdGroup> groups() const;
    /// The option; absent if the PPD does not have it.
    std::optional<PpdOption> option(const QByteArray &keyword) const;
    /// Whether the user can change the option: it has more than one choice, a custom value, or a PickMany
    /// choice. False if the PPD does not have the option.
    bool canBeChanged(const QByteArray &keyword) const;
    /// The parameters of the option's custom value, in the order of the PPD; empty if the option does not
    /// allow custom values.
    std::vector<PpdParameter> parameters(const QByteArray &keyword) const;
    /// The default choice of the PPD, which need not be one of the option's choices; absent if the PPD does
    /// not have the option.
    std::optional<QByteArray> defaultChoice(const QByteArray &keyword) const;
    /// The marked choices in the order of the PPD. Most options have one; an option without a valid default
    /// may have none.
    std::vector<QByteArray> markedChoices(const QByteArray &keyword) const;
    /// The UIConstraints, NonUIConstraints and cupsUIConstraints. Constraints are returned even if the PPD
    /// does not have their options and choices.
    std::vector<PpdConstraint> constraints() const;
    /// The finishings of the printer, which the PPD lists as *cupsIPPFinishings; libcups writes them for a
    /// driverless printer. Malformed lines are skipped.
    std::vector<PpdFinishing> finishings() const;

private:
    const PpdFile &m_ppd;
};

/// Returns the custom value that these parameters form, as a job contains it: "Custom.VALUE", or "{Name=VALUE
/// Name=VALUE}" for several parameters and for texts with characters that servers interpret. Lengths are
/// written in millimetres.
QByteArray customChoiceValue(const std::vector<PpdParameter> &parameters);

} // namespace printer
} // namespace host
