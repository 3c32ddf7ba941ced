// foundation/FichierPixmap.cpp
#include "foundation/FichierPixmap_p.h"

#include <QFile>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {
constexpr double kRatioMax = 2.0; // the resources hold no denser pictures
} // namespace

FichierPixmap ChoisisFichierPixmap(QString const & chemin, double ratioVoulu)
{
    if (ratioVoulu <= 1.0)
        return {chemin, 1.0};
    // Qt's own switch for the variants that it loads itself.
    static bool const sansVariantes =
        !qEnvironmentVariableIsEmpty("QT_HIGHDPI_DISABLE_2X_IMAGE_LOADING");
    if (sansVariantes)
        return {chemin, 1.0};

    qsizetype const point = chemin.lastIndexOf(u'.');
    qsizetype const place = point < 0 ? chemin.size() : point;
    QString variante = chemin;
    variante.insert(place, u"@2x"_s);
    for (int n = static_cast<int>(std::min(std::ceil(ratioVoulu), kRatioMax)); n > 1; --n) {
        variante[place + 1] = QChar(u'0' + n);
        if (QFile::exists(variante))
            return {variante, static_cast<double>(n)};
    }
    return {chemin, 1.0};
}
