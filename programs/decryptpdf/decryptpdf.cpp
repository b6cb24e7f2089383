// SPDX-License-Identifier: Apache-2.0
// Writes an encrypted PDF without its encryption:
//
//     kvprint-decryptpdf <encrypted.pdf >plain.pdf 3<password
//
// The password is read from descriptor 3, in UTF-8 and without a line end, so that it is in no list of
// arguments. The content of the PDF does not change otherwise. Standard input must be a file. The exit status
// is 1 if the document is damaged, 2 if it needs too much memory or time, and 3 if the password is wrong; the
// reason is written to standard error.
#include <programs/conversion/Conversion.h>
#include <programs/sandbox/Sandbox.h>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFWriter.hh>
#include <qpdf/QUtil.hh>

#include <cstdio>
#include <string>

#include <unistd.h>

namespace {

constexpr int passwordDescriptor = 3;

/// What the process may use. A document with very many pages needs some minutes.
programs::SandboxRules rules()
{
    programs::SandboxRules rules;
    rules.seconds = 300;
    rules.bytes = std::size_t{4} << 30U;
    return rules;
}

std::string readPassword()
{
    constexpr std::size_t longest = 4096;
    std::string password(longest, '\0');
    const ssize_t length = read(passwordDescriptor, password.data(), password.size());
    if (length < 0)
        throw programs::ConversionError(programs::ConversionError::Damaged, "cannot read the password");
    password.resize(static_cast<std::size_t>(length));
    return password;
}

/// Opens the document. The encoding of passwords depends on the program that encrypted the document.
void open(QPDF &pdf, const std::string &password)
{
    pdf.setSuppressWarnings(true);
    for (const std::string &encoded : QUtil::possible_repaired_encodings(password)) {
        try {
            std::rewind(stdin);
            pdf.processFile("the document", stdin, false, encoded.c_str());
            return;
        } catch (const QPDFExc &error) {
            if (error.getErrorCode() != qpdf_e_password)
                throw;
        }
    }
    throw programs::ConversionError(programs::ConversionError::WrongPassword, "the password is wrong");
}

void decrypt()
{
    QPDF pdf;
    open(pdf, readPassword());
    QPDFWriter writer(pdf);
    writer.setPreserveEncryption(false);
    writer.setStreamDataMode(qpdf_s_preserve);
    writer.setOutputFile("standard output", stdout, false);
    writer.write();
    programs::flushStandardOutput();
}

} // namespace

int main()
{
    programs::enterSandbox(rules());
    return programs::runConversion("kvprint-decryptpdf", decrypt);
}
