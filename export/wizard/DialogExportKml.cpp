#include "export/wizard/DialogExportKml.h"

#include "core/Property.h"
#include "export/wizard/DialogExportKmlOptions.h"
#include "export/wizard/DialogExportKmlPath.h"
#include "export/wizard/DialogExportKmlPlacemark.h"
#include "export/wizard/KmlOptionRanges.h"

#include <algorithm>
#include <utility>

namespace VELIX {

namespace {

using Options = KmlExportOptions;

struct TextSetting
{
    const char* key;
    std::string Options::*member;
};
struct NumberSetting
{
    const char* key;
    int Options::*member;
    KmlOptionRanges::Range range;
};
struct SwitchSetting
{
    const char* key;
    bool Options::*member;
};

constexpr TextSetting kDirectory = {"KmlExportDir", &Options::directory};
constexpr TextSetting kColors[] = {{"KmlLineColor", &Options::lineColor},
                                   {"KmlPolygonColor", &Options::polygonColor},
                                   {"KmlPlaceMarkColor", &Options::placeMarkColor},
                                   {"KmlErrorMarkColor", &Options::errorMarkColor}};
constexpr NumberSetting kNumbers[] = {
    {"KmlTimeStamp", &Options::timeStep, KmlOptionRanges::kTimeStep},
    {"KmlLineWidth", &Options::lineWidth, KmlOptionRanges::kLineWidth},
    {"KmlLineAlpha", &Options::lineAlpha, KmlOptionRanges::kAlpha},
    {"KmlPolygonAlpha", &Options::polygonAlpha, KmlOptionRanges::kAlpha},
    {"KmlPlaceMarkIntervall", &Options::placeMarkInterval, KmlOptionRanges::kInterval}};
constexpr SwitchSetting kSwitches[] = {
    {"KmlPolygonOn", &Options::polygonOn},     {"KmlPlaceMarkOn", &Options::placeMarkOn},
    {"KmlErrorMarkOn", &Options::errorMarkOn}, {"KmlShowLimit", &Options::showLimit},
    {"KmlShowWarning", &Options::showWarning}, {"KmlStandard", &Options::standard}};

/// Six hex digits; a settings file edited by hand can hold anything.
bool isColor(const std::string& digits)
{
    const auto isHex = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
    };
    return digits.size() == 6 && std::all_of(digits.begin(), digits.end(), isHex);
}

} // namespace

DialogExportKml::DialogExportKml(Property& settings, DialogService& dialogs,
                                 KmlSummarizer summarizer, QWidget* parent)
    : QWizard(parent), mSettings(settings), mSummarizer(std::move(summarizer))
{
    setWindowTitle(tr("KML Export for Virtual Globes"));
    setWizardStyle(QWizard::ModernStyle);
    setOption(QWizard::NoBackButtonOnStartPage);
    addPage(new DialogExportKmlPath(dialogs, mOptions, mSummarizer, this));
    addPage(new DialogExportKmlOptions(dialogs, mOptions, this));
    addPage(new DialogExportKmlPlacemark(dialogs, mOptions, mSummarizer, this));
}

bool DialogExportKml::getOptions(KmlExportOptions& options)
{
    loadOptions(options);
    if (exec() != QDialog::Accepted) {
        return false;
    }
    storeOptions();
    options = mOptions;
    return true;
}

void DialogExportKml::loadOptions(const KmlExportOptions& start)
{
    mOptions = KmlExportOptions();
    mOptions.fileName = start.fileName;
    mOptions.parameters = start.parameters;
    mOptions.directory = mSettings.getString(kDirectory.key, mOptions.directory);
    for (const TextSetting& setting : kColors) {
        const std::string text = mSettings.getString(setting.key, {});
        if (isColor(text)) {
            mOptions.*setting.member = text;
        }
    }
    for (const NumberSetting& setting : kNumbers) {
        int& number = mOptions.*setting.member;
        number = std::clamp(mSettings.getInt(setting.key, number), setting.range.least,
                            setting.range.most);
    }
    for (const SwitchSetting& setting : kSwitches) {
        bool& on = mOptions.*setting.member;
        on = mSettings.getSwitch(setting.key, on);
    }
    restart();
}

void DialogExportKml::storeOptions()
{
    mSettings.setString(kDirectory.key, mOptions.directory);
    for (const TextSetting& setting : kColors) {
        mSettings.setString(setting.key, mOptions.*setting.member);
    }
    for (const NumberSetting& setting : kNumbers) {
        mSettings.setInt(setting.key, mOptions.*setting.member);
    }
    for (const SwitchSetting& setting : kSwitches) {
        mSettings.setSwitch(setting.key, mOptions.*setting.member);
    }
    mSettings.writeXmlFile();
}

} // namespace VELIX
