#include "FontChoice.h"

#include <QFontInfo>
#include <QRegularExpression>
#include <QStringList>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

// Points that browsers use for the HTML font sizes 1 to 7.
constexpr std::array<double, 7> kPoints = {7.5, 10, 12, 13.5, 18, 24, 36};
constexpr double kUsualPoints = kPoints[2];

QStringList Faces(const QString& list) {
    QStringList faces;
    for (const QString& face : list.split(u',')) {
        if (!face.trimmed().isEmpty()) {
            faces << face.trimmed();
        }
    }
    return faces;
}

QString WithoutQuotes(QString face) {
    return face.remove(u'"').remove(u'\'');
}

// CSS requires quotes unless the family name consists of identifiers. Single quotes, since the list is also
// written into a double-quoted attribute.
QString FaceOf(const QString& family) {
    static const QRegularExpression words(u"^[A-Za-z_][A-Za-z0-9_-]*( [A-Za-z_][A-Za-z0-9_-]*)*$"_s);
    return words.match(family).hasMatch() ? family : u'\'' + WithoutQuotes(family) + u'\'';
}

double PointsOf(const QString& size) {
    const int number = size.toInt();
    return number >= 1 && number <= 7 ? kPoints.at(static_cast<std::size_t>(number - 1)) : kUsualPoints;
}

QString NearestSize(double points) {
    std::size_t nearest = 0;
    for (std::size_t i = 1; i < kPoints.size(); ++i) {
        if (std::abs(kPoints.at(i) - points) < std::abs(kPoints.at(nearest) - points)) {
            nearest = i;
        }
    }
    return QString::number(nearest + 1);
}

} // namespace

QFont FontOf(const ListingFont& font) {
    QFont result;
    QStringList families;
    for (const QString& face : Faces(font.faces)) {
        families << WithoutQuotes(face);
    }
    if (!families.isEmpty()) {
        result.setFamilies(families);
    }
    result.setPointSizeF(PointsOf(font.size));
    result.setBold(font.bold);
    result.setItalic(font.italic);
    return result;
}

ListingFont WithChosenFont(const ListingFont& font, const QFont& chosen) {
    const QString family = chosen.family();
    QStringList faces{FaceOf(family)};
    QStringList others = Faces(font.faces);
    // The first face is the previous choice; the others are its fallbacks and stay.
    if (others.size() > 1) {
        others.removeFirst();
    }
    for (const QString& face : others) {
        if (WithoutQuotes(face).compare(family, Qt::CaseInsensitive) != 0) {
            faces << face;
        }
    }
    const double points = chosen.pointSizeF() > 0 ? chosen.pointSizeF() : QFontInfo(chosen).pointSizeF();
    return {faces.join(u", "_s), NearestSize(points), chosen.bold(), chosen.italic()};
}

} // namespace tunedex
