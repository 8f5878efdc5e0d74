#include "tools/velix-card/CardCommand.h"

#include "card/LimitFinder.h"
#include "card/WarningFinder.h"
#include "core/Progress.h"
#include "export/ExportCsv.h"
#include "export/ExportKml.h"
#include "export/OutputFile.h"
#include "tools/velix-card/InfoReport.h"

#include <QFile>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <list>
#include <utility>

namespace VELIX {

namespace {

void say(const QString& sentence)
{
    std::fprintf(stderr, "%s\n", sentence.toLocal8Bit().constData());
}

} // namespace

CardCommand::CardCommand(CardOptions options, std::FILE* results)
    : mOptions(std::move(options)), mResults(results), mProfile(mOptions.unit), mCard(mProfile)
{}

int CardCommand::run()
{
    for (const auto step :
         {&CardCommand::open, &CardCommand::select, &CardCommand::load, &CardCommand::write}) {
        const Status status = (this->*step)();
        if (status != Status::Done) {
            return static_cast<int>(status);
        }
    }
    return 0;
}

CardCommand::Status CardCommand::open()
{
    if (!mProfile.loadProfile(mOptions.profile, mOptions.variant)) {
        say(QStringLiteral("%1 is not a usable parameter profile.").arg(mOptions.profile));
        return Status::Failed;
    }
    warnOfUnknownVariant();
    if (!mCard.readContainer(mOptions.card)) {
        say(QStringLiteral("There is no card folder %1.").arg(mOptions.card));
        return Status::Failed;
    }
    return Status::Done;
}

// An unknown name is no error: it takes the elements that no variant is named for.
void CardCommand::warnOfUnknownVariant()
{
    mProfile.loadVariants(mOptions.profile);
    const auto& variants = mProfile.variants();
    const bool known =
        mOptions.variant.isEmpty() || variants.empty() ||
        std::any_of(variants.begin(), variants.end(),
                    [this](const ProfileVariant& v) { return v.name == mOptions.variant; });
    if (!known) {
        say(QStringLiteral("Warning: the profile lists no variant %1.").arg(mOptions.variant));
    }
}

CardCommand::Status CardCommand::select()
{
    QSet<QString> wanted(mOptions.selected.begin(), mOptions.selected.end());
    for (ProfileDevice& device : mProfile.data().devices) {
        for (auto& [id, p] : device.parameters) {
            p.selected = mOptions.selected.contains(p.fullName);
            wanted.remove(p.fullName);
        }
    }
    if (wanted.isEmpty()) {
        return Status::Done;
    }
    say(QStringLiteral("The profile has no parameter %1.")
            .arg(wanted.values().join(QStringLiteral(", "))));
    return Status::WrongUsage;
}

CardCommand::Status CardCommand::load()
{
    if (!mOptions.hasSelection()) {
        return Status::Done;
    }
    Progress nobody;
    const std::list<QString> files(mOptions.files.begin(), mOptions.files.end());
    const Outcome outcome = mOptions.cycle
                                ? mCard.loadCycle(*mOptions.cycle, mOptions.flight, nobody)
                                : mCard.loadFiles(files, nobody);
    if (!outcome.ok) {
        say(outcome.reason);
        return Status::Failed;
    }
    if (!outcome.reason.isEmpty()) {
        say(QStringLiteral("Warning: %1").arg(outcome.reason));
    }
    warnOfMissingFlight();
    return Status::Done;
}

void CardCommand::warnOfMissingFlight() const
{
    if (!mOptions.cycle) {
        return;
    }
    const auto flights = mCard.recordCycles().at(*mOptions.cycle).flights.size();
    if (mOptions.flight >= 0 && static_cast<std::size_t>(mOptions.flight) >= flights) {
        say(QStringLiteral("Warning: cycle %1 has no flight %2, the whole cycle is loaded.")
                .arg(*mOptions.cycle)
                .arg(mOptions.flight));
    }
}

CardCommand::Status CardCommand::write()
{
    if (!mOptions.output.isEmpty()) {
        const Outcome outcome =
            writeOutputFile(mOptions.output, [this](QIODevice& out) { return writeTo(out); });
        if (outcome.ok) {
            return Status::Done;
        }
        say(QStringLiteral("%1 could not be written: %2.").arg(mOptions.output, outcome.reason));
        return Status::Failed;
    }
    QFile out;
    if (out.open(mResults, QIODevice::WriteOnly) && writeTo(out) && out.flush()) {
        return Status::Done;
    }
    say(QStringLiteral("The result could not be written."));
    return Status::Failed;
}

bool CardCommand::writeTo(QIODevice& out)
{
    Progress nobody;
    switch (mOptions.command) {
    case CardOptions::Command::Csv:
        return ExportCsv(mProfile).writeTable(mCard.recordData(), mOptions.csv, out, nobody);
    case CardOptions::Command::Kml:
        return writeKml(out, nobody);
    case CardOptions::Command::Info:
        break;
    }
    const QByteArray text = info();
    return out.write(text) == text.size();
}

bool CardCommand::writeKml(QIODevice& out, Progress& progress)
{
    RecordData& record = mCard.recordData();
    record.limits = findLimits(record, mProfile);
    record.warnings = findWarnings(record, mProfile);
    mOptions.kml.parameters = mProfile.selectedParameters();
    ExportKml writer(mProfile);
    if (!writer.summary(record, mOptions.kml).hasPositions) {
        say(QStringLiteral("Warning: there are no positions, the path is empty."));
    }
    return writer.writeDocument(record, mOptions.kml, out, progress);
}

QByteArray CardCommand::info()
{
    QJsonObject report = cardReport(mCard);
    if (mOptions.hasSelection()) {
        const std::vector<RecordFlight> flights =
            mOptions.cycle ? mCard.recordCycles().at(*mOptions.cycle).flights
                           : std::vector<RecordFlight>();
        const QJsonObject record = recordReport(mCard, mProfile, flights, mOptions.times);
        for (auto part = record.begin(); part != record.end(); ++part) {
            report.insert(part.key(), part.value());
        }
    }
    return QJsonDocument(report).toJson();
}

} // namespace VELIX
