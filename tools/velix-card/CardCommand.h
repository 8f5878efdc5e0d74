#pragma once

#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "tools/velix-card/CardOptions.h"

#include <QString>

#include <cstdio>

class QIODevice;

namespace VELIX {

class Progress;

/// Carries out one call of velix-card. Sentences for the user go to standard error.
class CardCommand
{
public:
    /// results: where the output goes if the options name no file.
    CardCommand(CardOptions options, std::FILE* results);

    /// The exit status: 0 done, 1 nothing could be read or written, 2 unknown parameter names.
    int run();

private:
    enum class Status { Done = 0, Failed = 1, WrongUsage = 2 };

    Status open();
    void warnOfUnknownVariant();
    Status select();
    Status load();
    void warnOfMissingFlight() const;
    Status write();
    bool writeTo(QIODevice& out);
    bool writeKml(QIODevice& out, Progress& progress);
    QByteArray info();

    CardOptions mOptions;
    std::FILE* mResults;
    Profile mProfile;
    CardContainer mCard;
};

} // namespace VELIX
