// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <vector>

/// A page of a PDF as PDF describes it.
struct RawPage {
    /// Entries of the page's dictionary, such as "/MediaBox [0 0 68 170] /Rotate 90".
    QByteArray entries;
    /// The content stream.
    QByteArray content = {};
};

/// Returns a PDF with the pages and with further objects, numbered from 10, that the entries may refer to.
QByteArray rawPdf(const std::vector<RawPage> &pages, const std::vector<QByteArray> &objects = {});
