// bench/bench_TexteRiche.cpp
//
// Rows of rich text, each with its own words, drawn for the first time and again, as scrolling
// does; beside a QTextDocument with the same mark-up, a bare QTextLayout with ready formats, plain
// QPainter::drawText and a prepared QStaticText. Then measuring, beside a bare QTextLayout, and
// what it leaves of the rows that were drawn; and the scan of the tags, in texts of 1 KB to 1 MB.
// Exits with 1 above a limit.
#include "Comparaison.h"

#include "foundation/TexteRiche.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <QStaticText>
#include <QTextDocument>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr double kPremiereFoisMax = 0.8; // times the document
constexpr double kEncoreMax = 0.25;      // times the document
// Times the document. Measures drive what is drawn out of the processor's caches, but not out of
// the memory: laid out anew, rows take 0.7.
constexpr double kApresMesuresMax = 0.4;
constexpr double kMesureMax = 1.3;      // times the layout with ready formats: the tags are read
constexpr double kCroissanceMax = 20.0; // for ten times the text; quadratic time takes a hundred

constexpr int kRangsVisibles = 50;
constexpr int kRangs = 5'000; // more than are remembered
constexpr int kMesuresEntreDessins = 3'000;
constexpr int kTours = 51;
constexpr QRect kRectangle(0, 0, 600, 24);

struct Rang
{
    QString balises; // for the library
    QString html;    // the same, for the document
    RoutinesGeneralesQt::TexteAvecFormat analyse;
    QStaticText statique;
};

struct Genre
{
    char const * nom;
    QString modele; // of the tags that the library and HTML share
};

std::vector<Rang> FabriqueRangs(QString const & modele, QFont const & font, int nombre)
{
    std::vector<Rang> rangs;
    for (int i = 0; i < nombre; ++i) {
        QString const texte = modele.arg(i);
        Rang rang{texte, texte, RoutinesGeneralesQt::DonneTexteAvecFormat(texte, font), {}};
        rang.statique = QStaticText(QString(rang.analyse.texte));
        rang.statique.setTextFormat(Qt::PlainText);
        rang.statique.prepare({}, font);
        rangs.push_back(rang);
    }
    return rangs;
}

void DessineParDocument(QPainter & peintre, Rang const & rang, QFont const & font)
{
    QTextDocument document;
    document.setDocumentMargin(0);
    document.setDefaultFont(font);
    document.setHtml(rang.html);
    document.setTextWidth(kRectangle.width());
    document.drawContents(&peintre);
}

void DessineParLayout(QPainter & peintre, Rang const & rang, QFont const & font)
{
    QTextLayout layout(rang.analyse.texte, font);
    layout.setFormats(rang.analyse.formats);
    layout.beginLayout();
    layout.createLine().setLineWidth(kRectangle.width());
    layout.endLayout();
    layout.draw(&peintre, kRectangle.topLeft());
}

double MesureParLayout(Rang const & rang, QFont const & font)
{
    QTextLayout layout(rang.analyse.texte, font);
    layout.setFormats(rang.analyse.formats);
    layout.beginLayout();
    QTextLine ligne = layout.createLine();
    ligne.setLineWidth(std::numeric_limits<int>::max());
    double const largeur = ligne.naturalTextWidth();
    layout.endLayout();
    return largeur;
}

QFont DonneFont()
{
    QFont font = QApplication::font();
    font.setPixelSize(13);
    return font;
}

// Runs over the rows in turn, and over all of them before one comes again.
template <typename Dessin>
Comparaison::Boucle ParRang(std::vector<Rang> const & rangs, Dessin dessin)
{
    auto suivant = std::make_shared<std::size_t>(0);
    return [&rangs, dessin, suivant](int repetitions) {
        for (int i = 0; i < repetitions; ++i)
            dessin(rangs[(*suivant)++ % rangs.size()]);
    };
}

void MesureDessin(Comparaison & comparaison, Genre const & genre)
{
    QFont const font = DonneFont();
    QImage image(kRectangle.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter peintre(&image);
    peintre.setFont(font);

    auto const notre = [&](Rang const & rang) {
        RoutinesGeneralesQt::DessineTexteRiche(peintre, kRectangle, font, rang.balises);
    };
    auto const document = [&](Rang const & rang) { DessineParDocument(peintre, rang, font); };
    auto const layout = [&](Rang const & rang) { DessineParLayout(peintre, rang, font); };
    auto const nu = [&](Rang const & rang) {
        peintre.drawText(kRectangle, Qt::TextSingleLine, rang.analyse.texte);
    };
    auto const statique = [&](Rang const & rang) {
        peintre.drawStaticText(QPointF(), rang.statique);
    };

    std::printf("-- %s\n", genre.nom);
    std::vector<Rang> const tous = FabriqueRangs(genre.modele, font, kRangs);
    std::vector<Rang> const visibles = FabriqueRangs(genre.modele, font, kRangsVisibles);
    comparaison.Mesure("first, QTextDocument", ParRang(tous, notre), ParRang(tous, document),
                       kPremiereFoisMax);
    comparaison.Mesure("first, bare QTextLayout", ParRang(tous, notre), ParRang(tous, layout), 0.0);
    comparaison.Mesure("again, QTextDocument", ParRang(visibles, notre),
                       ParRang(visibles, document), kEncoreMax);
    comparaison.Mesure("again, plain drawText", ParRang(visibles, notre), ParRang(visibles, nu),
                       0.0);
    comparaison.Mesure("again, prepared QStaticText", ParRang(visibles, notre),
                       ParRang(visibles, statique), 0.0);
}

void MesureLongueurs(Comparaison & comparaison, Genre const & genre)
{
    QFont const font = DonneFont();
    std::vector<Rang> const rangs = FabriqueRangs(genre.modele, font, kRangs);
    auto const notre = [&](Rang const & rang) {
        Garde(RoutinesGeneralesQt::DonneLongueurTexteRiche(rang.balises, font));
    };
    auto const layout = [&](Rang const & rang) { Garde(MesureParLayout(rang, font)); };
    comparaison.Mesure("measure, bare QTextLayout", ParRang(rangs, notre), ParRang(rangs, layout),
                       kMesureMax);
}

template <typename Dessin>
double DureeDesRangs(std::vector<Rang> const & rangs, Dessin const & dessin)
{
    QElapsedTimer chrono;
    chrono.start();
    for (Rang const & rang : rangs)
        dessin(rang);
    return static_cast<double>(chrono.nsecsElapsed()) / static_cast<double>(rangs.size());
}

// As a view does that asks for the size of many rows between two paintings. True within the limit.
bool MesureDessinApresMesures(Genre const & genre)
{
    QFont const font = DonneFont();
    QImage image(kRectangle.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter peintre(&image);
    std::vector<Rang> const tous = FabriqueRangs(genre.modele, font, kMesuresEntreDessins);
    std::vector<Rang> const visibles(tous.begin(), tous.begin() + kRangsVisibles);
    auto const notre = [&](Rang const & rang) {
        RoutinesGeneralesQt::DessineTexteRiche(peintre, kRectangle, font, rang.balises);
    };
    DureeDesRangs(visibles, notre);
    std::vector<double> rapports;
    for (int tour = 0; tour < kTours; ++tour) {
        for (Rang const & rang : tous)
            Garde(RoutinesGeneralesQt::DonneLongueurTexteRiche(rang.balises, font));
        double const duree = DureeDesRangs(visibles, notre);
        rapports.push_back(duree / DureeDesRangs(visibles, [&](Rang const & rang) {
                               DessineParDocument(peintre, rang, font);
                           }));
    }
    std::nth_element(rapports.begin(), rapports.begin() + kTours / 2, rapports.end());
    bool const depasse = rapports[kTours / 2] > kApresMesuresMax;
    std::printf("again after %d measures, QTextDocument %20.2f%s\n", kMesuresEntreDessins,
                rapports[kTours / 2], depasse ? "  above the limit" : "");
    return !depasse;
}

// True when the time grows with the text.
bool MesureAnalyse()
{
    QString const morceau = u"un <b>mot</b>, <i>un <s>autre</s></i> & un <a x>lien</a>; "_s;
    QFont const font = QApplication::font();
    double precedente = 0.0;
    bool reussi = true;
    std::printf("-- tags\n%-12s %14s %10s\n", "characters", "ns", "growth");
    for (int const taille : {1'000, 10'000, 100'000, 1'000'000}) {
        UniChaine const texte(
            morceau.repeated(taille / static_cast<int>(morceau.size()) + 1).left(taille));
        double const duree = MeilleureDuree(3'000'000 / taille, [&] { //
            Garde(RoutinesGeneralesQt::DonneTexteAvecFormat(texte, font));
        });
        double const croissance = precedente > 0.0 ? duree / precedente : 0.0;
        bool const depasse = croissance > kCroissanceMax;
        std::printf("%-12d %14.0f %10.1f%s\n", taille, duree, croissance,
                    depasse ? "  above the limit" : "");
        reussi = reussi && !depasse;
        precedente = duree;
    }
    return reussi;
}

} // namespace

int main(int nombre, char ** arguments)
{
    QApplication const application(nombre, arguments);
    Genre const genres[] = {
        {"a definition",
         u"<b>chat</b>, <i>nom masculin</i> : petit mammifère domestique, rang %1"_s},
        {"plain words", u"petit mammifère domestique aux yeux clairs, rang %1"_s},
        {"with an index above the line",
         u"<b>chat</b><sup>2</sup> <i>nom</i> : petit mammifère domestique, rang %1"_s},
    };
    Comparaison comparaison(200);
    for (Genre const & genre : genres)
        MesureDessin(comparaison, genre);
    std::puts("-- measures");
    for (Genre const & genre : genres)
        MesureLongueurs(comparaison, genre);
    bool const gardays = MesureDessinApresMesures(genres[0]);
    bool const lineaire = MesureAnalyse();
    return gardays && lineaire ? comparaison.Resultat() : 1;
}
