#include "profile/Profile.h"

#include "core/Diagnostics.h"
#include "core/Property.h"
#include "core/XmlHandler.h"
#include "profile/ProfileLoader.h"
#include "profile/VariantFilter.h"

#include <QDomDocument>
#include <QXmlStreamReader>

namespace VELIX {

namespace {

constexpr const char* kRootName = "CanAerospaceProfile";

EUnit unitFromSetting(int unit)
{
    return unit == eUnitImperial ? eUnitImperial : eUnitMetric;
}

bool isProfile(const QDomDocument& document)
{
    return document.documentElement().nodeName() == QLatin1String(kRootName);
}

/// Reads the lists of variants below the root, without the document that the model is made of.
void readVariants(QXmlStreamReader& reader, std::vector<ProfileVariant>& variants)
{
    while (reader.readNextStartElement()) {
        if (reader.qualifiedName() != QLatin1String("Variants")) {
            reader.skipCurrentElement();
            continue;
        }
        while (reader.readNextStartElement()) {
            if (reader.qualifiedName() == QLatin1String("Variant")) {
                const QXmlStreamAttributes attributes = reader.attributes();
                variants.push_back({attributes.value(QLatin1String("name")).toString(),
                                    attributes.value(QLatin1String("id")).toString(),
                                    attributes.value(QLatin1String("color")).toString()});
            }
            reader.skipCurrentElement();
        }
    }
}

} // namespace

Profile& Profile::instance()
{
    static Profile profile(unitFromSetting(Property::instance().getInt("Unit", eUnitMetric)));
    return profile;
}

Profile::Profile(EUnit unit) : mUnit(unit)
{
    static constexpr const char* kTypeNames[] = {
        "NODATA",  "ERROR",   "FLOAT",  "LONG",    "ULONG",   "BLONG",    "SHORT",    "USHORT",
        "BSHORT",  "CHAR",    "UCHAR",  "BCHAR",   "SHORT_2", "USHORT_2", "BSHORT_2", "CHAR_4",
        "UCHAR_4", "BCHAR_4", "CHAR_2", "UCHAR_2", "BCHAR_2", "MEMID",    "CHKSUM",   "ACHAR",
        "ACHAR_2", "ACHAR_4", "CHAR_3", "UCHAR_3", "BCHAR_3", "ACHAR_3"};
    int code = 0;
    for (const char* name : kTypeNames) {
        addCanasType(QString::fromLatin1(name), code++);
    }
}

void Profile::addCanasType(const QString& name, int code)
{
    mTypes[name] = code;
}

int Profile::loadProfile(const QString& file)
{
    mFile = file;
    return loadVariants(file);
}

int Profile::loadVariants(const QString& file)
{
    mVariants.clear();
    QByteArray text;
    if (!XmlHandler().xmlReadText(text, file)) {
        Diagnostics::print("Profile::loadVariants Error could not load <%s>\n",
                           file.toUtf8().constData());
        return 0;
    }
    QXmlStreamReader reader(text);
    reader.setNamespaceProcessing(false);
    if (!reader.readNextStartElement() || reader.qualifiedName() != QLatin1String(kRootName)) {
        Diagnostics::print("Profile::loadVariants Not a CanAerospaceProfile\n");
        return 0;
    }
    readVariants(reader, mVariants);
    return 1;
}

int Profile::loadProfile(const QString& file, const QString& variant)
{
    clear();
    mCurrentVariant = variant;
    Diagnostics::print("Profile::loadProfil <%s> <%s>\n", file.toUtf8().constData(),
                       variant.toUtf8().constData());
    QDomDocument document;
    XmlHandler xml;
    if (!xml.xmlReadFile(document, file) || !isProfile(document)) {
        return 0;
    }
    mModel = ProfileLoader(mTypes, variant).load(document.documentElement());
    return 1;
}

int Profile::setCurrentVariant(const QString& variant)
{
    return loadProfile(mFile, variant);
}

void Profile::clear()
{
    mModel = ProfileModel();
    resetCoordinates();
}

int Profile::checkVariant(const QString& current, const QDomNode& node)
{
    return VariantFilter(current).takes(node.toElement()) ? 1 : 0;
}

int Profile::checkVariant(const QString& current, const QString& list)
{
    return VariantFilter(current).takes(list) ? 1 : 0;
}

std::vector<const ProfileParameter*> Profile::selectedParameters() const
{
    std::vector<const ProfileParameter*> selected;
    for (const ProfileDevice& device : mModel.info.devices) {
        for (const auto& [id, p] : device.parameters) {
            if (p.selected) {
                selected.push_back(&p);
            }
        }
    }
    return selected;
}

ProfileParameter Profile::getParameterFromVelixType(const QString& type) const
{
    const auto found = mModel.roles.find(type);
    return found == mModel.roles.end() ? ProfileParameter() : found->second;
}

const ProfileEnum* Profile::enumeration(const ProfileParameter& p) const
{
    return decoder().enumeration(p);
}

ParameterSample Profile::next(const RecordEntry& e, const ProfileParameter& p, bool scale)
{
    return {e, p, mCoordinates, scale ? ParameterSample::Scale::On : ParameterSample::Scale::Off};
}

int Profile::getInt(const RecordEntry& e, const ProfileParameter& p) const
{
    return ProfileDecoder::integer(e, p);
}

int Profile::getInt(const RecordEntry& e) const
{
    const auto found = mModel.parameters.find(static_cast<int>(e.id));
    return found == mModel.parameters.end() ? getInt(e, ProfileParameter())
                                            : getInt(e, found->second);
}

double Profile::getDouble(const RecordEntry& e, const ProfileParameter& p, int& state,
                          QColor& color, bool scale)
{
    return decoder().number(next(e, p, scale), state, color);
}

double Profile::getDouble(const RecordEntry& e, const ProfileParameter& p, bool scale)
{
    return decoder().number(next(e, p, scale));
}

double Profile::getDouble(const RecordEntry& e, bool scale)
{
    return getDouble(e, mModel.parameters[static_cast<int>(e.id)], scale);
}

QString Profile::getDataString(const RecordEntry& e, const ProfileParameter& p, int& state,
                               QColor& color)
{
    return decoder().text(next(e, p, true), state, color);
}

double Profile::convertUnit(const ProfileParameter& p, double value) const
{
    return decoder().convert(p, value);
}

void Profile::getThreshold(const ProfileParameter& p, double value, int& state, QColor& color) const
{
    decoder().threshold(p, value, state, color);
}

QString Profile::getEnumValue(int /*enumId*/, int /*value*/) const
{
    return {};
}

double Profile::calcCoordinate(double value)
{
    return degreesFromDegreesMinutes(value);
}

double Profile::calcCoordinateLat(double value, double /*time*/)
{
    return mCoordinates.latitude(value);
}

double Profile::calcCoordinateLong(double value, double /*time*/)
{
    return mCoordinates.longitude(value);
}

void Profile::resetCoordinates()
{
    mCoordinates.reset();
}

} // namespace VELIX
