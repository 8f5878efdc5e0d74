#include "profile/Profile.h"

#include "core/Diagnostics.h"
#include "core/Property.h"
#include "core/XmlHandler.h"
#include "profile/DataType.h"
#include "profile/ProfileLoader.h"

#include <QDomDocument>
#include <QSet>
#include <QStringList>

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
    QDomDocument document;
    XmlHandler xml;
    if (!xml.xmlReadFile(document, file)) {
        Diagnostics::print("Profile::loadVariants Error could not load <%s>\n",
                           file.toUtf8().constData());
        return 0;
    }
    if (!isProfile(document)) {
        Diagnostics::print("Profile::loadVariants Not a CanAerospaceProfile\n");
        return 0;
    }
    const QString listName = QStringLiteral("Variants");
    const QString itemName = QStringLiteral("Variant");
    const QDomElement root = document.documentElement();
    for (QDomElement list = root.firstChildElement(listName); !list.isNull();
         list = list.nextSiblingElement(listName)) {
        for (QDomElement item = list.firstChildElement(itemName); !item.isNull();
             item = item.nextSiblingElement(itemName)) {
            mVariants.push_back({item.attribute(QStringLiteral("name")),
                                 item.attribute(QStringLiteral("id")),
                                 item.attribute(QStringLiteral("color"))});
        }
    }
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
    return checkVariant(current, node.toElement().attribute(QStringLiteral("variant")));
}

int Profile::checkVariant(const QString& current, const QString& list)
{
    if (list.isEmpty() || current.isEmpty()) {
        return 1;
    }
    const QStringList items = list.split(QLatin1Char(','));
    Diagnostics::print("variant <%s> size %d\n", list.toUtf8().constData(),
                       static_cast<int>(items.size()));
    QSet<QString> included;
    QSet<QString> excluded;
    for (const QString& item : items) {
        const QString name = item.trimmed();
        if (name.startsWith(QLatin1Char('!'))) {
            excluded.insert(name.mid(1));
        } else {
            included.insert(name);
        }
    }
    if (excluded.contains(current)) {
        return 0;
    }
    return included.isEmpty() || included.contains(current) ? 1 : 0;
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
    const auto found = mModel.enums.find(p.enumId);
    return found == mModel.enums.end() ? nullptr : &found->second;
}

QString Profile::getEnumValue(int /*enumId*/, int /*value*/) const
{
    return {};
}

QString Profile::textUnit(const ProfileParameter& p) const
{
    const bool converted = mUnit == eUnitImperial && p.dataType == eFloat && p.hasConversion;
    return converted ? p.unitImperial : p.unitMetric;
}

QString Profile::systemUnit(const ProfileParameter& p) const
{
    return mUnit == eUnitImperial ? p.unitImperial : p.unitMetric;
}

QString Profile::columnLabel(const ProfileParameter& p) const
{
    return p.label(textUnit(p));
}

} // namespace VELIX
