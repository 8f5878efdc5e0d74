#include "export/KmzArchive.h"

#include <QBuffer>

#include <KZip>

namespace VELIX {

bool writeKmz(const QByteArray& document, QIODevice& out)
{
    QBuffer archive; // writing a zip file goes back to its beginning, which a pipe cannot
    KZip zip(&archive);
    // Viewers open the first ".kml" of the archive, "doc.kml" by custom.
    const bool zipped = zip.open(QIODevice::WriteOnly) &&
                        zip.writeFile(QStringLiteral("doc.kml"), document) && zip.close();
    return zipped && out.write(archive.data()) == archive.data().size();
}

} // namespace VELIX
