// SPDX-License-Identifier: Apache-2.0
#include "Encryption.h"

#include "PdfObjects.h"

#include <QCryptographicHash>

#include <array>
#include <numeric>
#include <utility>

namespace documents {

namespace {

constexpr qsizetype keyLength = 5;
constexpr int contentObject = 4;

QByteArray rc4(const QByteArray &key, const QByteArray &data)
{
    std::array<unsigned char, 256> state;
    std::iota(state.begin(), state.end(), static_cast<unsigned char>(0));
    for (std::size_t i = 0, j = 0; i < state.size(); ++i) {
        const char keyByte = key.at(static_cast<qsizetype>(i) % key.size());
        j = (j + state[i] + static_cast<unsigned char>(keyByte)) % state.size();
        std::swap(state[i], state[j]);
    }
    QByteArray result = data;
    std::size_t i = 0;
    std::size_t j = 0;
    for (char &byte : result) {
        i = (i + 1) % state.size();
        j = (j + state[i]) % state.size();
        std::swap(state[i], state[j]);
        byte = static_cast<char>(byte ^ state[static_cast<std::size_t>(state[i] + state[j]) % state.size()]);
    }
    return result;
}

QByteArray md5(const QByteArray &data)
{
    return QCryptographicHash::hash(data, QCryptographicHash::Md5);
}

/// The bytes with which PDF fills up passwords to 32.
QByteArray padding()
{
    return QByteArray::fromHex("28BF4E5E4E758A4164004E56FFFA01082E2E00B6D0683E802F0CA9FE6453697A");
}

QByteArray padded(const QByteArray &password)
{
    return (password + padding()).left(32);
}

QByteArray hexString(const QByteArray &bytes)
{
    return '<' + bytes.toHex() + '>';
}

/// The key of one object, from the file's key.
QByteArray objectKey(const QByteArray &fileKey, int object)
{
    QByteArray salt(5, '\0');
    salt[0] = static_cast<char>(object);
    return md5(fileKey + salt).left(keyLength + salt.size());
}

} // namespace

QByteArray encryptedLabel(const QByteArray &password)
{
    // Everything is allowed to who knows the password.
    const QByteArray permissions = QByteArray::fromHex("FCFFFFFF");
    const QByteArray identifier = md5("a label");
    const QByteArray ownerEntry = rc4(md5(padded(password)).left(keyLength), padded(password));
    const QByteArray fileKey = md5(padded(password) + ownerEntry + permissions + identifier).left(keyLength);
    const QByteArray userEntry = rc4(fileKey, padding());
    const QByteArray content = "10 10 20 40 re f";
    return pdfFile(
        {"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
         "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 68.03 170.08] /Contents 4 0 R /Resources << >> >>",
         pdfStream(rc4(objectKey(fileKey, contentObject), content)),
         "<< /Filter /Standard /V 1 /R 2 /P -4 /O " + hexString(ownerEntry) + " /U " + hexString(userEntry) +
             " >>"},
        " /Encrypt 5 0 R /ID [" + hexString(identifier) + hexString(identifier) + ']');
}

} // namespace documents
