// bench/bench_DTabWidget.cpp
//
// Adding 50 and 500 tabs and switching through them, shown and not shown, without and with the
// general style sheet, beside a `QTabWidget` whose tabs carry the same: a frame with an icon and a
// title at the left, a close button at the right. What a tab takes of the memory is printed as
// well. Exits with 1 when ours takes more than 1.2 times as long. A change of tab alone has no
// limit while nothing is shown: there is hardly anything to do but to give both tabs their colours
// and close buttons their rules, which the peer does not do.
#include "foundation/ThemesQt.h"
#include "navigation/DTabWidget.h"
#include "style/DStyleProxy.h"

#include <QApplication>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyleFactory>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr double kRatioMax = 1.2;
constexpr int kTabs[] = {50, 500};
constexpr int kOngletsParMesure = 1'000; // the rounds of a size, times its tabs
constexpr int kToursMin = 7;
constexpr QSize kTaille(1'000, 600);

// Logical pixels, as those of our tabs.
constexpr int kLargeurTitre = 119;
constexpr int kCoteIcone = 20;
constexpr int kCoteBouton = 16;

struct Durees // milliseconds
{
    double ajout;
    double parcours;
};

class Notre
{
public:
    Notre() { monWidget.resize(kTaille); }

    QWidget & PreteWidget() { return monWidget; }
    void Ajoute(QWidget * page, QString const & titre) { monWidget.AjouteOnglet(page, titre); }
    void Montre(int index) { monWidget.MetsIndexCourant(index); }

private:
    DTabWidget monWidget{nullptr, u"groupe"_s};
};

class Pair
{
public:
    Pair()
    {
        monWidget.resize(kTaille);
        monWidget.setMovable(true);
        monWidget.tabBar()->setExpanding(false);
    }

    QWidget & PreteWidget() { return monWidget; }

    void Ajoute(QWidget * page, QString const & titre)
    {
        int const index = monWidget.addTab(page, QString());
        QTabBar & barre = *monWidget.tabBar();
        barre.setTabButton(index, QTabBar::LeftSide, CreeCadre(titre));
        barre.setTabToolTip(index, titre);
        auto * const bouton = new QToolButton;
        bouton->setIcon(monIcone);
        bouton->setObjectName(u"boutonFermeture"_s);
        bouton->setFixedSize(kCoteBouton, kCoteBouton);
        barre.setTabButton(index, QTabBar::RightSide, bouton);
    }

    void Montre(int index) { monWidget.setCurrentIndex(index); }

private:
    QFrame * CreeCadre(QString const & titre)
    {
        auto * const cadre = new QFrame(monWidget.tabBar());
        auto * const layout = new QHBoxLayout(cadre);
        layout->setContentsMargins(0, 0, 0, 0);
        cadre->setMinimumHeight(kCoteIcone);
        auto * const icone = new QLabel;
        layout->addWidget(icone);
        icone->setFixedSize(kCoteIcone, kCoteIcone);
        icone->hide();
        auto * const etiquette = new QLabel(titre);
        etiquette->setFixedWidth(kLargeurTitre);
        layout->addSpacing(5);
        layout->addWidget(etiquette);
        return cadre;
    }

    QTabWidget monWidget;
    QIcon monIcone{u":/Images/fermer.svg"_s};
};

double MillisecondesDepuis(std::chrono::steady_clock::time_point debut)
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - debut)
        .count();
}

template <typename Onglets>
Durees Passe(int nombre, bool montre)
{
    Onglets onglets;
    std::vector<QWidget *> pages(nombre);
    for (QWidget *& page : pages)
        page = new QWidget;
    if (montre)
        onglets.PreteWidget().show();
    QCoreApplication::processEvents();

    auto debut = std::chrono::steady_clock::now();
    for (int i = 0; i < nombre; ++i)
        onglets.Ajoute(pages[i], u"Document %1"_s.arg(i));
    QCoreApplication::processEvents();
    double const ajout = MillisecondesDepuis(debut);

    debut = std::chrono::steady_clock::now();
    for (int i = 1; i < nombre; ++i) {
        onglets.Montre(i);
        QCoreApplication::processEvents();
    }
    return {ajout, MillisecondesDepuis(debut)};
}

double Mediane(std::vector<double> valeurs)
{
    auto const milieu = valeurs.begin() + std::ptrdiff_t(valeurs.size() / 2);
    std::nth_element(valeurs.begin(), milieu, valeurs.end());
    return *milieu;
}

using Series = std::vector<double>; // milliseconds

// One line; the ratio is the median of those of neighbours in time, which a busy machine slows
// alike.
bool Imprime(char const * nom, int nombre, Series const & notres, Series const & pairs,
             double ratioMax)
{
    Series rapports;
    for (std::size_t i = 0; i < notres.size(); ++i)
        rapports.push_back(notres[i] / pairs[i]);
    double const ratio = Mediane(rapports);
    bool const depasse = ratioMax > 0.0 && ratio > ratioMax;
    std::printf("  %4d tabs %-28s %10.2f %10.2f %7.2f%s\n", nombre, nom, Mediane(notres),
                Mediane(pairs), ratio, depasse ? "  above the limit" : "");
    return !depasse;
}

bool Mesure(int nombre, bool montre)
{
    Series ajouts, ajoutsPair, parcours, parcoursPair, sommes, sommesPair;
    for (int tour = 0; tour < std::max(kToursMin, kOngletsParMesure / nombre); ++tour) {
        Durees const notres = Passe<Notre>(nombre, montre);
        Durees const pair = Passe<Pair>(nombre, montre);
        ajouts.push_back(notres.ajout);
        ajoutsPair.push_back(pair.ajout);
        parcours.push_back(notres.parcours);
        parcoursPair.push_back(pair.parcours);
        sommes.push_back(notres.ajout + notres.parcours);
        sommesPair.push_back(pair.ajout + pair.parcours);
    }
    std::printf(" %s\n", montre ? "shown" : "not shown");
    bool const ajout = Imprime("added", nombre, ajouts, ajoutsPair, kRatioMax);
    bool const change =
        Imprime("switched through", nombre, parcours, parcoursPair, montre ? kRatioMax : 0.0);
    return Imprime("both", nombre, sommes, sommesPair, kRatioMax) && ajout && change;
}

bool MesureTout(char const * titre)
{
    std::printf("%-38s %10s %10s %7s\n", titre, "ours ms", "peer ms", "ratio");
    bool tenu = true;
    for (bool const montre : {false, true})
        for (int const nombre : kTabs)
            tenu = Mesure(nombre, montre) && tenu;
    return tenu;
}

#ifdef __GLIBC__
// Bytes for each tab.
template <typename Onglets>
double DonneMemoire(int nombre)
{
    Onglets onglets;
    std::vector<QWidget *> pages(nombre);
    for (QWidget *& page : pages)
        page = new QWidget;
    onglets.PreteWidget().show();
    QCoreApplication::processEvents();
    std::size_t const avant = mallinfo2().uordblks;
    for (int i = 0; i < nombre; ++i)
        onglets.Ajoute(pages[i], u"Document %1"_s.arg(i));
    QCoreApplication::processEvents();
    return double(mallinfo2().uordblks - avant) / nombre;
}

void MesureMemoire()
{
    constexpr int kNombre = 500;
    double const notre = DonneMemoire<Notre>(kNombre);
    double const pair = DonneMemoire<Pair>(kNombre);
    std::printf("%-38s %10.0f %10.0f %7.2f\n", "bytes for each tab", notre, pair, notre / pair);
}
#else
void MesureMemoire() {}
#endif

QString FeuilleGenerale()
{
    ThemesQt::Instance()->AjouterVariable(u"widgetListeEditableFontSize"_s, u"12px"_s);
    QFile feuille(u":/Style/StyleGeneralGui.qss"_s);
    if (!feuille.open(QIODevice::ReadOnly))
        std::abort();
    return ThemesQt::Instance()->AppliquerVariable(QString::fromUtf8(feuille.readAll()));
}

} // namespace

int main(int nombre, char ** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(nombre, arguments);
    QApplication::setStyle(new DStyleProxy(QStyleFactory::create(u"Fusion"_s)));
    MesureMemoire();
    bool const sansFeuille = MesureTout("without a style sheet");
    application.setStyleSheet(FeuilleGenerale());
    bool const avecFeuille = MesureTout("with the general sheet");
    return sansFeuille && avecFeuille ? EXIT_SUCCESS : EXIT_FAILURE;
}
