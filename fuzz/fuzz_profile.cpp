// A damaged profile: its variants, every parameter of three of them, and messages that it decodes.

#include "fuzz/FuzzFolder.h"
#include "profile/Profile.h"

#include <array>
#include <string>
#include <vector>

namespace {

using namespace VELIX;
using namespace VELIX::Fuzz;

constexpr int kMostParameters = 200; // of one device: enough to meet each kind
constexpr std::size_t kMostVariants = 3;

/// Payloads at the edges: zeros, ones, a NaN, an infinity, a small number.
std::vector<RecordEntry> messages()
{
    constexpr std::array<std::array<std::uint8_t, 4>, 5> kPayloads = {{{0, 0, 0, 0},
                                                                       {0xFF, 0xFF, 0xFF, 0xFF},
                                                                       {0x7F, 0xC0, 0, 1},
                                                                       {0xFF, 0x80, 0, 0},
                                                                       {0x42, 0x10, 0x40, 0x01}}};
    std::vector<RecordEntry> entries;
    std::uint8_t type = 0;
    for (const auto& payload : kPayloads) {
        RecordEntry entry;
        entry.data = {1, type, 0, 0, payload[0], payload[1], payload[2], payload[3]};
        entry.aux18 = 0xFFFF;
        entry.timeLow = 0x80000001;
        entries.push_back(entry);
        type = static_cast<std::uint8_t>(type + 7); // 28 codes are known, others are not
    }
    return entries;
}

void decode(Profile& profile, const RecordEntry& entry, const ProfileParameter& p)
{
    for (const EUnit unit : {eUnitMetric, eUnitImperial}) {
        profile.setCurrentUnit(unit);
        int textState = -1;
        QColor textColor;
        profile.resetCoordinates();
        const QString text = profile.getDataString(entry, p, textState, textColor);
        std::string appended;
        const ParameterSample sample(entry, p);
        const ProfileDecoder decoder = profile.decoder();
        decoder.appendText(sample, appended);
        require(text.toStdString() == appended, "an exported text differs from the shown one");

        int state = -1;
        QColor color;
        decoder.judge(sample, state, color);
        require(state == textState && color == textColor, "a state differs from that of the text");

        profile.getDouble(entry, p, state, color, true);
        profile.getDouble(entry, p, false);
        decoder.metric(sample);
        for (const auto of : {NumberFormat::EUnitOf::Number, NumberFormat::EUnitOf::Text,
                              NumberFormat::EUnitOf::List}) {
            profile.format(p).label(of);
        }
        profile.format(p).decimals();
        profile.format(p).decimals(NumberFormat::EDecimals::Step);
    }
    profile.getInt(entry, p);
}

void useProfile(Profile& profile)
{
    static const std::vector<RecordEntry> entries = messages();
    for (ProfileDevice& device : profile.data().devices) {
        int left = kMostParameters;
        for (auto& [id, p] : device.parameters) {
            p.selected = true;
            for (const RecordEntry& entry : entries) {
                RecordEntry message = entry;
                message.id = static_cast<std::uint32_t>(id);
                decode(profile, message, p);
                profile.getInt(message);
                profile.getDouble(message, true);
            }
            require(p.velixDataType.isEmpty() ||
                        profile.getParameterFromVelixType(p.velixDataType).velixDataType ==
                            p.velixDataType,
                    "a role is lost");
            if (--left == 0) {
                break;
            }
        }
        for (const FaultMatrix& matrix : device.errorMatrices) {
            for (const auto& [bit, p] : matrix.bits) {
                require(bit >= 0 && bit < 32 && p.id == matrix.id, "a bit outside of its matrix");
            }
        }
    }
    profile.selectedParameters();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static const FuzzFolder folder;
    silenceDiagnostics();
    const QString path = folder.write("Profile.xml", bytes, size);

    Profile profile;
    const bool isProfile = profile.loadProfile(path) != 0;
    require((profile.loadProfile(path, QString()) != 0) == isProfile,
            "the variant list and the profile disagree about the file");
    require(isProfile || profile.isEmpty(), "something was read from a file that is no profile");
    useProfile(profile);
    const std::vector<ProfileVariant> variants = profile.variants();
    for (std::size_t i = 0; i < variants.size() && i < kMostVariants; ++i) {
        require(profile.setCurrentVariant(variants[i].name) != 0, "a variant does not load");
        useProfile(profile);
    }
    return 0;
}
