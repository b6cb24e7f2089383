// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PDEFormatter.h"

#include <QJsonObject>

#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace textentry {

/// A request to try edits on a formatter, read and checked as a whole; see tryFormatter().
struct FormatterRequest {
    struct Edit {
        std::optional<QString> partial;
        std::optional<PDETextRange> proposed;
        QString original;
        PDETextRange originalSelection;
    };
    /// A value to display.
    struct Format {
        QVariant object;
    };
    /// A text to turn into a value.
    struct ObjectValue {
        QString string;
    };
    using Trial = std::variant<Edit, Format, ObjectValue>;

    /// The request, or a text that names the member that is missing or of a wrong type, and what it should
    /// be.
    static std::variant<FormatterRequest, QString> read(const QJsonObject &request);

    /// The formatter of the request, and what is tried with it, in order.
    std::unique_ptr<PDEFormatter> formatter;
    std::vector<Trial> trials;
};

} // namespace textentry
