// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LengthUnit.h"
#include "NumberField.h"

namespace dialog {
inline namespace widgets {

/// A field for a length within limits, in the user's unit and with a precision of 0.01 mm. If the limits
/// allow only one length, the field shows it and is read-only.
class LengthField : public NumberField {
    Q_OBJECT

public:
    /// Creates a field for lengths within these limits.
    LengthField(host::Points minimum, host::Points maximum, QWidget *parent);

    /// Returns the length, always within the limits; exactly the minimum if the field is read-only.
    host::Points length() const;
    /// Shows the length, limited to the range, without emitting a signal.
    void showLength(host::Points length);

private:
    LengthUnit m_unit;
    host::Points m_minimum;
    host::Points m_maximum;
};

} // namespace widgets
} // namespace dialog
