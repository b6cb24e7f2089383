// SPDX-License-Identifier: Apache-2.0
#include "Dump.h"

#include <platform/FormatString.h>
#include <platform/Log.h>
#include <platform/OutputFile.h>

#include <cstddef>

using platform::stringWithFormat;

namespace {

/// The text that begins at the byte at offset of a record and ends, at the latest, with the record.
template<typename Record>
std::string textWithin(const Record *record, std::size_t offset)
{
    const char *const text = reinterpret_cast<const char *>(record) + offset;
    return std::string(text, strnlen(text, sizeof(Record) - offset));
}

void logOption(const ppd_option_t &option)
{
    platform::log(stringWithFormat("***** conflicted | %@",
                                   textWithin(&option, offsetof(ppd_option_t, conflicted)).c_str()));
    platform::log(stringWithFormat("***** keyword | %@", option.keyword));
    platform::log(stringWithFormat("***** defchoice | %@", option.defchoice));
    platform::log(stringWithFormat("***** text | %@", option.text));
    platform::log(stringWithFormat("***** ui == %d", option.ui));
    platform::log(stringWithFormat("***** section == %d", option.section));
    platform::log(stringWithFormat("***** order == %f", option.order));
    platform::log(stringWithFormat("***** num_choices == %d", option.num_choices));
}

/// The first choice stands for all; an option without choices shows "(null)".
void logFirstChoice(const ppd_option_t &option)
{
    const ppd_choice_t *const choice = option.num_choices > 0 ? option.choices : nullptr;
    const std::string marked = choice ? textWithin(choice, offsetof(ppd_choice_t, marked)) : std::string();
    platform::log(stringWithFormat("***** choices->marked | %@", choice ? marked.c_str() : nullptr));
    platform::log(stringWithFormat("***** choices->choice | %@", choice ? choice->choice : nullptr));
    platform::log(stringWithFormat("***** choices->text | %@", choice ? choice->text : nullptr));
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): fixed names, see the header
void _PDELog_ppd_option_t(ppd_file_t *ppd, const char *keyword)
{
    if (!ppd) {
        platform::log(QStringLiteral("PPD file is not loaded!!"));
        return;
    }
    if (!keyword) {
        platform::log(QStringLiteral("ppdOptionName is NULL!!"));
        return;
    }
    const ppd_option_t *const option = ppdFindOption(ppd, keyword);
    if (!option) {
        platform::log(stringWithFormat("the PPD has no option %@", keyword));
        return;
    }
    platform::log(stringWithFormat("+-+-+-+-+-+-+-+-+-+- start is %@", keyword));
    logOption(*option);
    logFirstChoice(*option);
    platform::log(stringWithFormat("+-+-+-+-+-+-+-+-+-+- end is %@", keyword));
}

void _PDELog_PMPrintSettings_WriteToFile(PMPrintSettings settings, const std::optional<QString> &name)
{
    if (!settings || !name)
        return;
    QByteArray data;
    if (PMPrintSettingsCreateDataRepresentation(settings, &data) != platform::noError)
        return;
    platform::OutputFile file(stringWithFormat("/KvPDE_%@.plist", *name));
    if (file.write([&](QIODevice *device) { return device->write(data) == data.size(); }))
        file.commit();
}
// NOLINTEND(bugprone-reserved-identifier)
