#pragma once

#include "platform/viewlib/ViewModel.h"
#include "platform/viewlib/ViewParts.h"

#include <QString>

#include <map>
#include <set>

namespace Vista2D {

/// Reads a line of an instrument, a lamp or a block of named scales.
class ViewInstrumentReader
{
public:
    static constexpr std::size_t kMostScales = 64; ///< of one instrument or name
    static constexpr std::size_t kMostBands = 64;  ///< of one scale; marks as well

    /// What a line may belong to.
    enum class Owner { Scales, Lamp, Instrument };

    /// Whether a line that begins with the word may belong to such an owner.
    [[nodiscard]] static bool knows(Owner owner, const QString& word);

    /// Takes what the line belongs to; the binding of named scales is null.
    ViewInstrumentReader(ViewParts& parts, ViewScales& scales, ViewBinding* binding)
        : mParts(parts), mAttributes(parts.attributes()), mScales(scales), mBinding(binding)
    {}

    /// Reads the line of a word that the owner knows.
    void read(const QString& word);

private:
    enum class Part { Band, Mark };
    struct Line
    {
        void (ViewInstrumentReader::*read)();
        std::set<Owner> owners;
    };

    static const std::map<QString, Line>& lines();

    void readScale();
    void rangeOf(ViewScale& scale);
    void readBand();
    void readMark();
    void addToScale(Part part, const ViewBand& band);
    void readNumber() { readCaption(ViewCaption::Shows::Number); }
    void readUnit() { readCaption(ViewCaption::Shows::Unit); }
    void readCaption(ViewCaption::Shows shows);
    void readCase();

    ViewParts& mParts;
    ViewAttributes& mAttributes;
    ViewScales& mScales;
    ViewBinding* mBinding;
};

} // namespace Vista2D
