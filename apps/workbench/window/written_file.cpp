#include "workbench/window/written_file.h"

#include <QCryptographicHash>
#include <QFile>
#include <cctype>

#include "platform/files.h"
#include "platform/paths.h"
#include "workbench/window/dialog_font.h"

bool writeFile(const QString& path, const QByteArray& bytes, QString& error) {
    const auto inside = paths::toInside(QFile::encodeName(path).toStdString());
    std::string why = "the name cannot be used";
    if (inside && files::writeWhole(*inside, bytes.toStdString(), why)) return true;
    error = inside ? toQt(why) : path + ": " + toQt(why);
    return false;
}

QByteArray withoutMoment(QByteArray pdf) {
    // Blanks keep the places of all that comes behind.
    const auto date = pdf.lastIndexOf("/CreationDate");
    const auto dateEnd = date < 0 ? date : pdf.indexOf(')', date);
    for (auto i = date; i >= 0 && i <= dateEnd; ++i) pdf[i] = ' ';

    const auto number = pdf.lastIndexOf("/ID");
    const auto numberEnd = number < 0 ? number : pdf.indexOf(']', number);
    const auto isDigit = [&](auto i) {
        return std::isxdigit(static_cast<unsigned char>(pdf[i])) != 0;
    };
    for (auto i = number + 3; number >= 0 && i < numberEnd; ++i)
        if (isDigit(i)) pdf[i] = '0';
    const QByteArray made = QCryptographicHash::hash(pdf, QCryptographicHash::Md5).toHex();
    qsizetype digit = 0;
    for (auto i = number + 3; number >= 0 && i < numberEnd; ++i)
        if (isDigit(i)) pdf[i] = made[digit++ % made.size()];
    return pdf;
}
