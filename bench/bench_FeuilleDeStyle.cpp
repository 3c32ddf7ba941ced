// bench/bench_FeuilleDeStyle.cpp
//
// The library's style sheet on an application of 5,000 widgets, with the style on Fusion beside
// Fusion alone: the time that setting and removing the sheet takes. Exits with 1 when a limit is
// passed.
#include "foundation/ThemesQt.h"
#include "style/DStyleProxy.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleFactory>
#include <QToolButton>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int kWidgets = 5'000;
constexpr int kTours = 21;
constexpr double kRatioMax = 1.05;

// A form of every kind of widget that the sheet has rules for, in groups of fifty.
void Remplis(QWidget & fenetre)
{
    std::function<QWidget *(QWidget *)> const fabriques[] = {
        [](QWidget * parent) { return new QLabel(u"Texte"_s, parent); },
        [](QWidget * parent) { return new QPushButton(u"Bouton"_s, parent); },
        [](QWidget * parent) { return new QToolButton(parent); },
        [](QWidget * parent) { return new QCheckBox(u"Case"_s, parent); },
        [](QWidget * parent) { return new QLineEdit(parent); },
        [](QWidget * parent) { return new QComboBox(parent); },
    };
    QWidget * groupe = nullptr;
    for (int i = 0; i < kWidgets; ++i) {
        if (i % 50 == 0) {
            groupe = new QFrame(&fenetre);
            continue;
        }
        fabriques[static_cast<std::size_t>(i) % std::size(fabriques)](groupe);
    }
    for (QWidget * const widget : fenetre.findChildren<QWidget *>())
        widget->ensurePolished();
}

// What setting and removing the sheet take with that style, in milliseconds.
struct Durees
{
    double mise;
    double retrait;
};

Durees Mesure(QStyle * style, QString const & feuille)
{
    QApplication::setStyle(style);
    QCoreApplication::processEvents();
    Durees durees{};
    for (auto const & [texte, duree] :
         {std::pair(feuille, &durees.mise), std::pair(QString(), &durees.retrait)}) {
        QElapsedTimer chrono;
        chrono.start();
        qApp->setStyleSheet(texte);
        QCoreApplication::processEvents();
        *duree = static_cast<double>(chrono.nsecsElapsed()) / 1e6;
    }
    return durees;
}

double Mediane(std::vector<double> mesures)
{
    auto const milieu = mesures.begin() + static_cast<std::ptrdiff_t>(mesures.size() / 2);
    std::nth_element(mesures.begin(), milieu, mesures.end());
    return *milieu;
}

// Prints one line; false when the limit is passed.
bool Juge(char const * nom, std::vector<Durees> const & notres, std::vector<Durees> const & pairs,
          double Durees::*duree)
{
    std::vector<double> notre;
    std::vector<double> pair;
    std::vector<double> rapports; // of two neighbours in time, which a busy machine slows alike
    for (std::size_t i = 0; i < notres.size(); ++i) {
        notre.push_back(notres[i].*duree);
        pair.push_back(pairs[i].*duree);
        rapports.push_back(notre.back() / pair.back());
    }
    double const ratio = Mediane(rapports);
    std::printf("%-20s %12.2f %12.2f %7.3f%s\n", nom, Mediane(notre), Mediane(pair), ratio,
                ratio > kRatioMax ? "  above the limit" : "");
    return ratio <= kRatioMax;
}

} // namespace

int main(int nombre, char ** arguments)
{
    QApplication const application(nombre, arguments);
    bool reussi = true;
    {
        QFile fichier(u":/Style/StyleGeneralGui.qss"_s);
        if (!fichier.open(QIODevice::ReadOnly)) {
            std::puts("no sheet to measure");
            return 1;
        }
        // The one variable of the sheet that is the application's to define.
        ThemesQt::Instance()->AjouterVariable(u"widgetListeEditableFontSize"_s, u"17px"_s);
        QString const feuille =
            ThemesQt::Instance()->AppliquerVariable(QString::fromUtf8(fichier.readAll()));
        QWidget fenetre;
        Remplis(fenetre);

        std::vector<Durees> notres;
        std::vector<Durees> pairs;
        auto const fusion = [] { return QStyleFactory::create(u"Fusion"_s); };
        Mesure(fusion(), feuille); // so that the sheet's pictures are loaded
        for (int tour = 0; tour < kTours; ++tour) {
            notres.push_back(Mesure(new DStyleProxy(fusion()), feuille));
            pairs.push_back(Mesure(fusion(), feuille));
        }
        std::printf("%-20s %12s %12s %7s\n", "5,000 widgets", "ours ms", "Fusion ms", "ratio");
        reussi = Juge("setting the sheet", notres, pairs, &Durees::mise) && reussi;
        reussi = Juge("removing the sheet", notres, pairs, &Durees::retrait) && reussi;
        std::printf("the limit is %.2f\n", kRatioMax);
    }
    ThemesQt::DetruisToi();
    return reussi ? 0 : 1;
}
