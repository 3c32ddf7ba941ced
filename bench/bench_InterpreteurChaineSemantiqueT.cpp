// bench/bench_InterpreteurChaineSemantiqueT.cpp
//
// The base rules applied to tagged texts of 1,000 to 1,000,000 characters, beside a chain of
// QString::replace, which reads no element and so finds no mistake, and beside one
// QRegularExpression over the tags. Exits with 1 when the time does not grow linearly.
#include "Comparaison.h"
#include "style/DStyleProxy.h"
#include "style/InterpreteurChaineSemantiqueT.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <cstdio>

using namespace Qt::StringLiterals;

using Interpreteur = InterpreteurChaineSemantiqueT<UniChaine>;

namespace {

// Ten times the text may take this many times as long: ten, and as much again for what the larger
// one loses to the caches and the allocator. Quadratic time would take a hundred times as long.
constexpr double kCroissanceMax = 20.0;

// Whole elements only, filled up with letters to the length asked for.
QString FabriqueTexte(qsizetype taille)
{
    QString const morceau =
        u"un <b>mot</b>, <i>un <b>autre</b></i>,<br/>m<sup>2</sup> &amp; <zut>du reste</zut>. "_s;
    QString const texte = morceau.repeated(taille / morceau.size());
    return texte + QString(taille - texte.size(), u'x');
}

// The tags of the base rules, each with what stands in its place, and the reserved characters.
QString RemplaceParBoucle(QString texte)
{
    static constexpr struct
    {
        QStringView avant;
        QStringView apres;
    } kRemplacements[] = {
        {u"<br/>", u"<br>"}, {u"<b>", u"<b>"},     {u"</b>", u"</b>"},     {u"<i>", u"<i>"},
        {u"</i>", u"</i>"},  {u"<sup>", u"<sup>"}, {u"</sup>", u"</sup>"}, {u"&lt;", u"<"},
        {u"&gt;", u">"},     {u"&quot;", u"\""},   {u"&apos;", u"'"},      {u"&amp;", u"&"},
    };
    for (auto const & [avant, apres] : kRemplacements)
        texte.replace(avant.toString(), apres.toString());
    return texte;
}

QString RemplaceParExpression(QString const & texte)
{
    static QRegularExpression const balise(u"<(/?(?:b|i|sup|br))/?>|&(amp);"_s);
    QString resultat;
    qsizetype fin = 0;
    for (QRegularExpressionMatch const & trouvay : balise.globalMatch(texte)) {
        resultat += QStringView(texte).mid(fin, trouvay.capturedStart() - fin);
        if (trouvay.hasCaptured(2))
            resultat += u'&';
        else
            resultat += u'<' + trouvay.captured(1) + u'>';
        fin = trouvay.capturedEnd();
    }
    resultat += QStringView(texte).mid(fin);
    return resultat;
}

} // namespace

int main(int nombre, char ** arguments)
{
    QCoreApplication const application(nombre, arguments);
    EnsembleRegles const regles = DStyleProxy::DonneReglesDeBase();
    bool reussi = true;
    double precedente = 0.0;
    std::printf("%-10s %14s %16s %16s %8s\n", "characters", "rules ns", "replace loop ns",
                "expression ns", "growth");
    for (qsizetype const taille : {1'000, 10'000, 100'000, 1'000'000}) {
        QString const texte = FabriqueTexte(taille);
        QString const resultat = Interpreteur::AppliqueRegles(texte, regles);
        if (texte.size() != taille || resultat == texte || resultat != RemplaceParBoucle(texte) ||
            resultat != RemplaceParExpression(texte)) {
            std::puts("the text is not the one that is to be measured, or the three differ on it");
            reussi = false;
        }
        int const repetitions = static_cast<int>(1'000'000 / taille);
        double const duree =
            MeilleureDuree(repetitions, [&] { Interpreteur::AppliqueRegles(texte, regles); });
        double const boucle = MeilleureDuree(repetitions, [&] { RemplaceParBoucle(texte); });
        double const expression =
            MeilleureDuree(repetitions, [&] { RemplaceParExpression(texte); });
        double const croissance = precedente > 0.0 ? duree / precedente : 0.0;
        bool const depasse = croissance > kCroissanceMax;
        std::printf("%-10lld %14.0f %16.0f %16.0f %8.1f%s\n", static_cast<long long>(taille), duree,
                    boucle, expression, croissance, depasse ? "  above the limit" : "");
        reussi = reussi && !depasse;
        precedente = duree;
    }
    std::printf("growth is for ten times the text; the limit is %.0f\n", kCroissanceMax);
    return reussi ? 0 : 1;
}
