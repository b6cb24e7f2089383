// SPDX-License-Identifier: Apache-2.0
#include "OptionsPpd.h"

namespace {

QByteArray head()
{
    return "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
           "*LanguageVersion: English\n*LanguageEncoding: UTF-8\n*PCFileName: \"OPTIONS.PPD\"\n"
           "*Manufacturer: \"Kvelland\"\n*Product: \"(Options)\"\n*ModelName: \"Options\"\n"
           "*ShortNickName: \"Options\"\n*NickName: \"Kvelland Options\"\n*PSVersion: \"(3010.000) 0\"\n"
           "*LanguageLevel: \"3\"\n*ColorDevice: False\n*DefaultColorSpace: Gray\n"
           "*OpenUI *PageSize/Media Size: PickOne\n*DefaultPageSize: Small\n*PageSize Small/Small: \"\"\n"
           "*PageSize Large/Large: \"\"\n*CloseUI: *PageSize\n"
           "*OpenUI *PageRegion/Media Size: PickOne\n*DefaultPageRegion: Small\n*PageRegion Small/Small: "
           "\"\"\n"
           "*PageRegion Large/Large: \"\"\n*CloseUI: *PageRegion\n"
           "*DefaultPaperDimension: Small\n*PaperDimension Small: \"100 200\"\n*PaperDimension Large: \"200 "
           "300\"\n"
           "*DefaultImageableArea: Small\n*ImageableArea Small: \"0 0 100 200\"\n"
           "*ImageableArea Large: \"0 0 200 300\"\n";
}

constexpr char optionsInGroups[] = R"(*OpenGroup: Print/Print & Quality
*OpenUI *Darkness/Darkness: PickOne
*DefaultDarkness: Normal
*Darkness Light/Light: ""
*Darkness Normal/Normal: ""
*Darkness Dark/Dark: ""
*CloseUI: *Darkness
*CustomDarkness True/Own darkness: ""
*ParamCustomDarkness Level/Level (percent): 1 int 10 90
*OpenUI *Turbo/Turbo: Boolean
*DefaultTurbo: False
*Turbo True/Fast: ""
*Turbo False/Careful: ""
*CloseUI: *Turbo
*OpenUI *Feed/Feed: Boolean
*DefaultFeed: Long
*Feed Long/Long edge: ""
*Feed Short/Short edge: ""
*CloseUI: *Feed
*OpenUI *Fixed/Fixed: PickOne
*DefaultFixed: Only
*Fixed Only/Only: ""
*CloseUI: *Fixed
*OpenUI *Twins/Twins: PickOne
*DefaultTwins: First
*Twins First/Same: ""
*Twins Second/Same: ""
*CloseUI: *Twins
*CloseGroup: Print
*OpenGroup: Finish/Finishing
*OpenUI *Marks/Marks: PickMany
*DefaultMarks: None
*Marks None/No marks: ""
*Marks Crop/Crop marks: ""
*Marks Fold/Fold marks: ""
*Marks Text/Text & date: ""
*CloseUI: *Marks
*OpenUI *Extras/Extras: PickMany
*DefaultExtras: Seal
*Extras Seal/Seal: ""
*CloseUI: *Extras
*OpenUI *Stamp/Stamp: PickOne
*DefaultStamp: Off
*Stamp Off/Off: ""
*CloseUI: *Stamp
*CustomStamp True/Custom: ""
*ParamCustomStamp Words/Words: 1 string 2 12
*OpenUI *Offset/Offset: PickOne
*DefaultOffset: Zero
*Offset Zero/None: ""
*CloseUI: *Offset
*CustomOffset True/Custom: ""
*ParamCustomOffset Left/From the left: 1 points 10 144
*ParamCustomOffset Gain/Gain: 2 real -1.5 2.5
*ParamCustomOffset Key/Key: 3 passcode 4 6
*ParamCustomOffset Secret/Secret: 4 password 0 8
*ParamCustomOffset Bend/Bend: 5 curve 0.1 4
*ParamCustomOffset Back/Back: 6 invcurve 0.1 4
*CloseGroup: Finish
*OpenGroup: InstallableOptions/Installed
*OpenUI *Cutter/Cutter: Boolean
*DefaultCutter: True
*Cutter True/Yes: ""
*Cutter False/No: ""
*CloseUI: *Cutter
*CloseGroup: InstallableOptions
*UIConstraints: *Darkness Dark *Turbo True
*UIConstraints: *Turbo True *Darkness Dark
*UIConstraints: *Darkness Light *Marks Crop
*UIConstraints: *Marks Crop *Darkness Light
*de.Translation Print/Druck & Qualität: ""
*de.Translation Darkness/Schwärzungsgrad der Druckzeile bei Thermodirektdruck: ""
*de.Darkness Light/Hell: ""
*de.Darkness Dark/Dunkel, mit vermindertem Vorschub und verlängerter Heizdauer je Druckzeile: ""
*de.CustomDarkness True/Eigener Wert: ""
*de.ParamCustomDarkness Level/Stärke (Prozent): ""
*de.Translation Turbo/Schnelldruck: ""
*de.Turbo True/Schnell: ""
*de.Translation Marks/Zu druckende Marken: ""
*de.Marks Crop/Schnittmarken: ""
)";

} // namespace

QByteArray optionsPpd()
{
    return head() + optionsInGroups;
}

QByteArray largeOptionsPpd(int options, int choices)
{
    QByteArray text = head();
    for (int i = 0; i < options; ++i) {
        const QByteArray name = "Option" + QByteArray::number(i);
        if (i == 0 || i == options / 2) {
            const QByteArray close = i == 0 ? QByteArray() : QByteArray("*CloseGroup: First\n");
            text += close + (i == 0 ? "*OpenGroup: First/First\n" : "*OpenGroup: Second/Second\n");
        }
        text += "*OpenUI *" + name + "/Option " + name + ": PickOne\n*Default" + name + ": C0\n";
        for (int j = 0; j < choices; ++j)
            text +=
                "*" + name + " C" + QByteArray::number(j) + "/Choice " + QByteArray::number(j) + ": \"\"\n";
        text += "*CloseUI: *" + name + "\n";
    }
    return text + "*CloseGroup: Second\n";
}

host::PpdFile openPpd(const Sandbox &sandbox, const QByteArray &text, const QString &language)
{
    auto ppd = host::PpdFile::open(sandbox.write(QStringLiteral("options.ppd"), text));
    if (!ppd)
        qFatal("%s", qPrintable(ppd.error().message));
    if (!language.isEmpty())
        ppd.value().localize(language);
    ppd.value().markDefaults();
    return std::move(ppd).value();
}
