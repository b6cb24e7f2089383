// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSpinBox>

#include <vector>

namespace rollcutter {

/// A field for a number that is one of a list, such as the intervals that a printer has: stepping moves to
/// the next number of the list, and other numbers cannot be entered.
class IntervalBox : public QSpinBox {
public:
    /// A field for the numbers, which are in ascending order and not empty.
    explicit IntervalBox(std::vector<int> numbers, QWidget *parent = nullptr);

    void stepBy(int steps) override;

protected:
    QValidator::State validate(QString &input, int &position) const override;
    void fixup(QString &input) const override;

private:
    std::vector<int> m_numbers;
};

} // namespace rollcutter
