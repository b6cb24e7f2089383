// SPDX-License-Identifier: Apache-2.0
#include "Drawing.h"

#include <QFile>
#include <QRegularExpression>

namespace pictures {

Drawing::Drawing(Theme theme)
    : m_theme(theme)
{
}

void Drawing::add(const QString &part, Numbers numbers)
{
    QFile file(QStringLiteral(":/pictures/parts/%1.svg").arg(part));
    if (!file.open(QIODevice::ReadOnly)) {
        m_errors.append(QStringLiteral("There is no part \"%1\".").arg(part));
        return;
    }
    m_content += filledIn(part, QString::fromUtf8(file.readAll()), numbers);
}

QString Drawing::filledIn(const QString &part, QString text, Numbers numbers)
{
    static const QRegularExpression comment(QStringLiteral("<!--.*?-->\\s*"),
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression placeholder(QStringLiteral("@(\\w+)@"));
    text.remove(comment);
    for (const auto &[name, value] : numbers)
        text.replace(QStringLiteral("@%1@").arg(QLatin1String(name)), QString::number(value));
    const QHash<QString, QString> &values = colours(m_theme);
    for (auto colour = values.cbegin(); colour != values.cend(); ++colour)
        text.replace(QStringLiteral("@%1@").arg(colour.key()), colour.value());
    const QRegularExpressionMatch left = placeholder.match(text);
    if (!left.hasMatch())
        return text;
    m_errors.append(
        QStringLiteral("The part \"%1\" asks for \"%2\", which is not given.").arg(part, left.captured(1)));
    return {};
}

QString Drawing::svg() const
{
    return QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.2\" baseProfile=\"tiny\" "
                          "width=\"%1\" height=\"%2\" viewBox=\"0 0 %1 %2\">\n%3</svg>\n")
        .arg(naturalSize.width())
        .arg(naturalSize.height())
        .arg(m_content);
}

} // namespace pictures
