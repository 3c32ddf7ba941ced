// foundation/TexteRiche.cpp
#include "foundation/TexteRiche.h"

#include "foundation/AnalyseTexteRiche_p.h"
#include "foundation/MemoireTexteRiche_p.h"
#include "foundation/PoliceTexteRiche_p.h"

#include <QApplication>
#include <QColor>
#include <QTextCharFormat>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace RoutinesGeneralesQt {

namespace {

constexpr QStringView kLosange = u"  ◆";
constexpr QStringView kDebutCouleur = u"<font color =";
constexpr qsizetype kIndexCouleur = 14;   // behind the quote
constexpr qsizetype kLongueurCouleur = 7; // of "#rrggbb"

enum eEffet
{
    kFormat,
    kFormatMajuscule, // also of the text that follows
    kNomPropre,
    kCouleur
};

struct Balise
{
    QStringView jeton;
    bool estDebut; // of the token, which may go on
    eEffet effet;
    PoliceTexteRiche::eFormat format;
};

using Police = PoliceTexteRiche;

constexpr Balise kBalises[] = {
    {u"<i>", false, kFormat, Police::kItalique},
    {u"<b>", false, kFormat, Police::kGras},
    {u"<s>", false, kFormatMajuscule, Police::kPetitesCapitales},
    {u"<em>", false, kFormat, Police::kEmphase},
    {u"<m>", false, kFormatMajuscule, Police::kMention},
    {u"<sub>", false, kFormat, Police::kIndice},
    {u"<sup>", false, kFormat, Police::kExposant},
    {kDebutSurlignement, true, kFormat, Police::kSurlignement},
    {u"<pn>", false, kNomPropre, {}},
    {kDebutCouleur, true, kCouleur, {}},
};

// In a proper name emphasis and mentions are upright.
Police::eFormat DonneFormatDansNomPropre(Police::eFormat format)
{
    if (format == Police::kEmphase)
        return Police::kEmphaseRomaine;
    return format == Police::kMention ? Police::kMentionRomaine : format;
}

// A tag, or the text up to the next one.
struct Jeton
{
    QStringView texte;
    bool estBalise = false;
};

// Nothing but white space between the angle brackets.
bool EstComparaison(QStringView jeton)
{
    QStringView const contenu = jeton.mid(1, jeton.size() - 2);
    return !contenu.isEmpty() &&
           std::all_of(contenu.begin(), contenu.end(), [](QChar unite) { return unite.isSpace(); });
}

// `debut` is within the text.
Jeton DonneJeton(QStringView texte, qsizetype debut)
{
    bool const candidat = texte.at(debut) == u'<';
    for (qsizetype fin = debut + 1; fin < texte.size(); ++fin) {
        if (texte.at(fin) == u'<')
            return {texte.mid(debut, fin - debut)};
        if (candidat && texte.at(fin) == u'>') {
            QStringView const jeton = texte.mid(debut, fin + 1 - debut);
            return {jeton, !EstComparaison(jeton)};
        }
    }
    return {texte.mid(debut)};
}

QTextCharFormat DonneFormatCouleur(QStringView jeton)
{
    // Deliberate: by index. Another spacing gives another colour, or an invalid one.
    QTextCharFormat format;
    format.setForeground(QColor(jeton.mid(kIndexCouleur, kLongueurCouleur)));
    return format;
}

class Analyseur
{
public:
    explicit Analyseur(PoliceTexteRiche const & police)
        : maPolice(police)
    {
    }

    TexteAvecFormat Analyse(UniChaine const & source)
    {
        QString const texte = source;
        monTexte.reserve(texte.size());
        for (qsizetype position = 0; position < texte.size();) {
            Jeton const jeton = DonneJeton(texte, position);
            position += jeton.texte.size();
            if (!jeton.estBalise)
                AjouteTexte(jeton.texte);
            else if (jeton.texte.startsWith(u"</"))
                Ferme(jeton.texte);
            else if (jeton.texte == u"<br/>")
                monTexte += u'\n'; // no element: nothing closes it
            else
                Ouvre(jeton.texte);
        }
        return {source, monTexte, mesFormats};
    }

private:
    struct PlageOuverte
    {
        QTextCharFormat format;
        qsizetype debut;
    };

    void AjouteTexte(QStringView texte)
    {
        // The text grows where a letter has two capitals, and the open ranges with it.
        if (std::exchange(monDemandeDeMajuscules, false))
            monTexte += QString(UniChaine(texte.toString()).Majusculise());
        else
            monTexte += texte;
    }

    void Ferme(QStringView jeton)
    {
        if (!mesOuvertes.empty()) {
            AjouteFormat(mesOuvertes.back().debut, mesOuvertes.back().format);
            mesOuvertes.pop_back();
        }
        if (jeton != u"</pn>")
            return;
        qsizetype const debut = monTexte.size();
        monTexte += kLosange;
        AjouteFormat(debut, maPolice.DonneFormat(PoliceTexteRiche::kLosange));
        monDansNomPropre = false;
    }

    void Ouvre(QStringView jeton)
    {
        mesOuvertes.push_back({{}, monTexte.size()});
        auto const * const balise =
            std::find_if(std::begin(kBalises), std::end(kBalises), [jeton](Balise const & connue) {
                return connue.estDebut ? jeton.startsWith(connue.jeton) : jeton == connue.jeton;
            });
        if (balise == std::end(kBalises))
            return;
        QTextCharFormat & format = mesOuvertes.back().format;
        switch (balise->effet) {
        case kFormatMajuscule:
            monDemandeDeMajuscules = true;
            [[fallthrough]];
        case kFormat:
            format = maPolice.DonneFormat(
                monDansNomPropre ? DonneFormatDansNomPropre(balise->format) : balise->format);
            break;
        case kCouleur:
            format = DonneFormatCouleur(jeton);
            break;
        case kNomPropre:
            monDansNomPropre = true;
            break;
        }
    }

    void AjouteFormat(qsizetype debut, QTextCharFormat const & format)
    {
        mesFormats.append(
            {static_cast<int>(debut), static_cast<int>(monTexte.size() - debut), format});
    }

    PoliceTexteRiche const & maPolice;
    QString monTexte;
    QList<QTextLayout::FormatRange> mesFormats;
    std::vector<PlageOuverte> mesOuvertes;
    bool monDansNomPropre = false;
    bool monDemandeDeMajuscules = false;
};

} // namespace

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
TexteAvecFormat DonneTexteAvecFormat(UniChaine texte, QFont font)
{
    return AnalyseTexteRiche(texte, *MemoireTexteRiche::Instance().DonnePolice(font));
}

UniChaine DonneTexteRichePourInfobulle(UniChaine const & texte, bool vide)
{
    if (vide && texte.EstVide())
        return texte;
    QFont const font = QApplication::font();
    QString const style = u"font: %1px %2;"_s.arg(QString::number(font.pixelSize()), font.family());
    // All at once: the text may hold a "%2" of its own.
    return u"<span style=\"%1\">%2%3"_s.arg(style, texte, u"</span>"_s);
}

bool InfobulleContientTexteRiche(UniChaine const & texte)
{
    UniChaine debut = DonneTexteRichePourInfobulle(kUniChaineNulle, false);
    debut.EnleveFin(UniChaine("</span>").Longueur());
    return !debut.EstVide() && texte.LongueurPrefixeCommun(debut) == debut.Longueur();
}

int ConvertisQTextCharFormatEnTypBitStyle(QTextCharFormat const & format)
{
    enum eBits
    {
        kItalique = 1,
        kGras = 2,
        kExposant = 4,
        kIndice = 8
    };
    int style = 0;
    if (format.fontItalic())
        style |= kItalique;
    if (format.fontWeight() == QFont::Bold)
        style |= kGras;
    if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript)
        style |= kExposant;
    else if (format.verticalAlignment() == QTextCharFormat::AlignSubScript)
        style |= kIndice;
    return style;
}

} // namespace RoutinesGeneralesQt

RoutinesGeneralesQt::TexteAvecFormat AnalyseTexteRiche(UniChaine const & source,
                                                       PoliceTexteRiche const & police)
{
    return RoutinesGeneralesQt::Analyseur(police).Analyse(source);
}
