// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QBasicTimer>
#include <QWidget>

#include <cstdint>
#include <limits>
#include <optional>

namespace platform {
inline namespace controls {

/// Two small arrows, one above the other, that increase and decrease a number. Another control, a text field
/// beside the stepper, shows the number.
///
/// The arrows repeat while they are pressed; the arrow keys, the page keys and the wheel also work.
class Stepper : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int value READ value WRITE setValue)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)

public:
    explicit Stepper(QWidget *parent = nullptr);

    /// The value.
    std::int32_t value() const { return m_value; }

    /// Sets the value, limited to minimum and maximum. Emits no signal, because the program and not the user
    /// changes the value.
    void setValue(std::int32_t value);

    /// Sets the value, limited to minimum and maximum, as the arrows do, and emits stepped() even if the
    /// value is the same as before. Does nothing while the stepper is disabled.
    void stepTo(std::int64_t value);

    /// The limits of the value, both included. Setting a limit does not change the value.
    std::int32_t minimum() const { return m_minimum; }
    void setMinimum(std::int32_t minimum) { m_minimum = minimum; }
    std::int32_t maximum() const { return m_maximum; }
    void setMaximum(std::int32_t maximum) { m_maximum = maximum; }

    QSize sizeHint() const override;

Q_SIGNALS:
    /// Emitted when the user has stepped; value() is the new number.
    void stepped();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    enum class Arrow { Up, Down };

    Arrow arrowAt(QPoint position) const;
    QRect arrowRect(Arrow arrow) const;
    void drawArrow(QPainter &painter, Arrow arrow) const;
    void stepBy(std::int64_t amount);
    void setValueWithin(std::int64_t value);
    void release();

    std::int32_t m_value = 0;
    std::int32_t m_minimum = std::numeric_limits<std::int32_t>::min();
    std::int32_t m_maximum = std::numeric_limits<std::int32_t>::max();
    std::optional<Arrow> m_pressed;
    int m_wheelRemainder = 0;
    QBasicTimer m_repeat;
};

} // namespace controls
} // namespace platform
