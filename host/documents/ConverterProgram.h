// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <optional>

class QIODevice;

namespace host {
inline namespace documents {

/// Runs the programs that convert documents to PDF.
///
/// A converter is a process of its own, so that the libraries for PDF and SVG are loaded only in runs that
/// open such a document.
class ConverterProgram {
public:
    /// How a conversion ended.
    enum class End {
        Converted,
        Rejected,      ///< the document is damaged (exit status 1)
        TooLarge,      ///< the document exceeds the limits of the program (exit status 2, or a signal)
        WrongPassword, ///< the password is wrong (exit status 3)
        Forbidden,     ///< the program attempted what the sandbox forbids (SIGSYS)
        Missing,       ///< the program is not there or cannot be started
        Canceled,      ///< the caller has canceled the conversion
    };

    /// The converter "imagepdf" is the program kvprint-imagepdf in the folder of the private libraries.
    explicit ConverterProgram(const QString &converter);

    /// Sets what the program can read from descriptor 3: a password, which must not be among the arguments.
    void setSecret(const QByteArray &secret) { m_secret = secret; }
    /// Runs the program, passes it the content on standard input, and waits until it ends.
    End run(const QStringList &arguments, const QByteArray &content);
    /// Runs the program with standard input and standard output from and to files, and waits until it ends.
    /// The output file must exist; its content is replaced. Ends the program when isCanceled returns true.
    End runOnFiles(const QStringList &arguments, const QString &input, const QString &output,
                   const std::function<bool()> &isCanceled);
    /// What the program wrote to standard output.
    const QByteArray &output() const { return m_output; }
    /// The error of a program that is missing, with its path.
    DocumentErrorReason missing() const;
    /// The error of a program that the sandbox has ended.
    static DocumentErrorReason forbidden();

private:
    QString m_path;
    std::optional<QByteArray> m_secret;
    QByteArray m_output;
};

/// Writes the PDF to the device. Returns an error if the device cannot hold all of it.
Result<void, DocumentErrorReason> storePdf(QByteArrayView bytes, QIODevice *pdf);

} // namespace documents
} // namespace host
