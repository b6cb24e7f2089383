// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLabel>

namespace platform {
inline namespace controls {

/// The two colours of a control's text.
enum class ControlTextColor { Enabled, Disabled };

/// A control whose text colour can be set independently of its enabled state.
class TextColoring {
public:
    virtual ~TextColoring() = default;
    /// Sets the color of the text.
    virtual void setTextColor(ControlTextColor color) = 0;
};

/// A text on a panel that can have the disabled colour without being disabled, such as a text that belongs to
/// a disabled field. The colours come from the theme and follow its changes.
class StaticText : public QLabel, public TextColoring {
    Q_OBJECT

public:
    explicit StaticText(QWidget *parent = nullptr);

    /// The color of the text.
    ControlTextColor textColor() const { return m_color; }
    void setTextColor(ControlTextColor color) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    ControlTextColor m_color = ControlTextColor::Enabled;
};

} // namespace controls
} // namespace platform
