// SPDX-License-Identifier: Apache-2.0
#include "FullPpd.h"

#include <tests/samples/OptionsPpd.h>
#include <tests/samples/SamplePpd.h>

QByteArray fullPpd()
{
    const QByteArray options = optionsPpd();
    return tapePpd() + options.mid(options.indexOf("*OpenGroup: Print/")) +
           "*UIConstraints: *KvMirror ON *Darkness Light\n*UIConstraints: *Darkness Light *KvMirror ON\n";
}
