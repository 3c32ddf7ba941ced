// galerie/JetonsTexteRiche.cpp
#include "JetonsTexteRiche.h"

#include "TraductionGalerie.h"

#include "foundation/TexteRiche.h"

#include <QBrush>
#include <QLocale>
#include <QRegularExpression>
#include <QStringList>
#include <QTextCharFormat>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

struct EffetBalise
{
    QLatin1StringView balise;
    bool estDebut; // of the tag: attributes follow
    ChaineLocalisable effet;
};

constexpr EffetBalise kEffets[] = {
    {"<i>"_L1, false, TexteGalerie("Italique")},
    {"<b>"_L1, false, TexteGalerie("Gras")},
    {"<s>"_L1, false, TexteGalerie("Petites capitales")},
    {"<em>"_L1, false, TexteGalerie("Un point de plus, italique hors d’un nom")},
    {"<m>"_L1, false, TexteGalerie("Petites capitales, italiques hors d’un nom")},
    {"<sub>"_L1, false, TexteGalerie("Indice")},
    {"<sup>"_L1, false, TexteGalerie("Exposant")},
    {"<br/>"_L1, false, TexteGalerie("Saut de ligne")},
    {"<span class=\"surlignement\""_L1, true, TexteGalerie("Surlignement")},
    {"<font color ="_L1, true, TexteGalerie("Couleur du texte")},
    {"<pn>"_L1, false, TexteGalerie("Nom")},
    {"</pn>"_L1, false, TexteGalerie("Fin du nom, suivie d’un losange")},
    {"</"_L1, true, TexteGalerie("Fin")},
};

QString DonneEffet(QString const & jeton)
{
    if (!jeton.startsWith(u'<') || !jeton.endsWith(u'>'))
        return TraductionGalerie(TexteGalerie("Texte"));
    for (EffetBalise const & effet : kEffets)
        if (effet.estDebut ? jeton.startsWith(effet.balise) : jeton == effet.balise)
            return TraductionGalerie(effet.effet);
    return TraductionGalerie(TexteGalerie("Sans effet"));
}

} // namespace

QList<JetonTexteRiche> DonneJetons(QString const & texteBalisay)
{
    // Of a tag that is not closed, the text goes on to the next one.
    static QRegularExpression const expression(u"<[^<>]*>|<[^<]*|[^<]+"_s,
                                               QRegularExpression::DotMatchesEverythingOption);
    QList<JetonTexteRiche> jetons;
    for (QRegularExpressionMatch const & trouvay : expression.globalMatch(texteBalisay))
        jetons.append({trouvay.captured(), DonneEffet(trouvay.captured())});
    return jetons;
}

QString DecrisFormat(QTextCharFormat const & format)
{
    using Style = std::pair<bool, ChaineLocalisable>;
    int const bits = RoutinesGeneralesQt::ConvertisQTextCharFormatEnTypBitStyle(format);
    Style const styles[] = {
        {bits & 1, TexteGalerie("italique")},
        {bits & 2, TexteGalerie("gras")},
        {bits & 4, TexteGalerie("exposant")},
        {bits & 8, TexteGalerie("indice")},
        {format.fontCapitalization() == QFont::SmallCaps, TexteGalerie("petites capitales")},
    };
    QStringList description;
    for (auto const & [estMis, nom] : styles)
        if (estMis)
            description.append(TraductionGalerie(nom));
    if (int const pixels = format.font().pixelSize(); pixels > 0)
        description.append(
            TraductionGalerie(TexteGalerie("{1} px"), {UniChaine(QLocale().toString(pixels))}));
    if (format.hasProperty(QTextFormat::ForegroundBrush))
        description.append(TraductionGalerie(TexteGalerie("texte {1}"),
                                             {UniChaine(format.foreground().color().name())}));
    if (format.hasProperty(QTextFormat::BackgroundBrush))
        description.append(TraductionGalerie(TexteGalerie("fond {1}"),
                                             {UniChaine(format.background().color().name())}));
    return description.join(u", "_s);
}
