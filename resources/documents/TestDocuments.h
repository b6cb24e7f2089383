// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace documents {

/// A file for the tests.
struct TestDocument {
    QString name;
    QByteArray bytes;
};

/// Documents as they come in spite of everything: protected, cut off, empty, of another kind, without a
/// page, with a blank label in the middle, with labels of several lengths.
std::vector<TestDocument> testDocuments();

} // namespace documents
