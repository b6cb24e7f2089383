// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMap>
#include <QRect>
#include <QString>

namespace model {

/// The frames that the panel's layout file gives its controls, y downwards from the view's top edge. Read
/// from the file, as a layout may be rearranged without any rule changing.
class LayoutFile {
public:
    /// The layout of the sources; frames() is empty when the file cannot be read.
    static const LayoutFile &ofSources();

    explicit LayoutFile(const QString &path);

    QRect frame(const QString &control) const { return m_frames.value(control); }
    int viewWidth() const { return frame("kPDEView").width(); }
    int viewHeight() const { return frame("kPDEView").height(); }

private:
    QMap<QString, QRect> m_frames;
};

} // namespace model
