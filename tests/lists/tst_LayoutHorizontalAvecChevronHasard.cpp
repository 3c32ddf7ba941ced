#include "lists/LayoutHorizontalAvecChevron.h"

#include "lists/EssaisChevron.h"

#include <QRandomGenerator>
#include <QtTest>

#include <cmath>
#include <map>
#include <numeric>

using namespace EssaisChevron;

// Random rows beside a model that knows where the row would end if it never ran out of room, and
// looks for the first item that this leaves without.

namespace {

constexpr int kRangees = 10'000;

struct Description
{
    QSize taille; // null for a spacer
    bool ressort = false;
    int espacement = 0;
};

struct Attendu
{
    QList<bool> visibles;
    QList<QRect> places;
    QRect chevron;
    int hauteur = 0;
    int largeurRessort = 0;
};

class Modele
{
public:
    QList<Description> items;
    QSize chevron; // invalid without one
    int marge = 0;
    QRect rect;

    Attendu Calcule(bool cache) const
    {
        Attendu attendu;
        attendu.largeurRessort = DonneLargeurRessort();
        auto const debuts = DonneDebuts(attendu.largeurRessort);
        int const premier = DonnePremierSansPlace(debuts, attendu.largeurRessort);
        int const milieu = rect.y() + marge; // the top of the rectangle in which items are centred
        int const hauteurLibre = rect.y() + rect.height() - milieu;
        for (int i = 0; i < items.size(); ++i) {
            QSize const taille = DonneTaille(i, attendu.largeurRessort);
            attendu.visibles.append(i < premier);
            attendu.hauteur = std::max(attendu.hauteur, taille.height());
            QPoint const coin(debuts.at(std::min(i, premier)),
                              milieu + hauteurLibre / 2 - taille.height() / 2);
            bool const cachay = cache && chevron.isValid() && i >= premier;
            attendu.places.append(cachay ? QRect() : QRect(coin, taille));
        }
        attendu.hauteur += 2 * marge;
        if (chevron.isValid() && premier < items.size()) {
            int const libre = rect.height() - 2 * marge - chevron.height();
            attendu.chevron =
                QRect(QPoint(debuts.at(premier), milieu + std::max(0, libre) / 2), chevron);
        }
        return attendu;
    }

private:
    QSize DonneTaille(int i, int largeurRessort) const
    {
        return items.at(i).ressort ? QSize(largeurRessort, 1) : items.at(i).taille;
    }

    int DonneFin() const { return rect.x() + rect.width() - 1 - marge; }

    // Where each item would begin on a row without end, and where the last ends with its spacing.
    QList<int> DonneDebuts(int largeurRessort) const
    {
        QList<int> debuts{rect.x() + marge};
        for (int i = 0; i < items.size(); ++i)
            debuts.append(debuts.last() + DonneTaille(i, largeurRessort).width() +
                          items.at(i).espacement);
        return debuts;
    }

    int DonnePremierSansPlace(QList<int> const & debuts, int largeurRessort) const
    {
        int i = 0;
        for (; i < items.size(); ++i) {
            bool const entre = debuts.at(i) + DonneTaille(i, largeurRessort).width() <= DonneFin();
            bool const dernier = i == items.size() - 1;
            int const chevronSuivant = debuts.at(i + 1) + std::max(0, chevron.width());
            if (!entre || (!dernier && chevronSuivant > DonneFin()))
                break;
        }
        return i;
    }

    int DonneLargeurRessort() const
    {
        auto const ressort = std::find_if(items.begin(), items.end(),
                                          [](Description const & item) { return item.ressort; });
        auto const rang = static_cast<int>(ressort - items.begin());
        auto const debuts = DonneDebuts(0);
        if (ressort == items.end() || DonnePremierSansPlace(debuts, 0) < rang)
            return 0;
        double reste = rect.width() - 2 * marge - debuts.at(rang) - 1;
        reste += (std::count_if(ressort, items.end(),
                                [](Description const & item) { return !item.ressort; })) *
                 double(ressort->espacement);
        reste -=
            std::accumulate(ressort, items.end(), 0.0, [](double somme, Description const & item) {
                return somme + (item.ressort ? 0 : item.taille.width());
            });
        auto const ressorts = std::count_if(ressort, items.end(),
                                            [](Description const & item) { return item.ressort; });
        return std::max(0, static_cast<int>(std::floor(reste / double(ressorts))));
    }
};

// One random row: what the model knows, and the layout that stands for it.
class Tirage
{
public:
    Tirage(QRandomGenerator & hasard, std::map<int, StyleEspace *> const & styles)
        : monHasard(hasard)
    {
        mesEspacements = Tire(0, 2) == 0 ? -1 : Tire(0, 6);
        fenetre.setStyle(styles.at(3));
        modele.marge = Tire(0, 1) * Tire(0, 5);
        if (Tire(0, 3) > 0) {
            chevron = new Pave(QSize(Tire(0, 20), Tire(0, 20)), &fenetre);
            modele.chevron = chevron->sizeHint();
        }
        layout = new LayoutHorizontalAvecChevron(&fenetre, chevron, modele.marge);
        layout->setSpacing(mesEspacements);
        int ressorts = Tire(0, 3);
        int const nombre = Tire(0, 8);
        for (int i = 0; i < nombre; ++i) {
            if (ressorts > 0 && Tire(0, 3) == 0) {
                --ressorts;
                AjouteRessort();
            } else {
                AjoutePave(*styles.at(Tire(0, 1) ? 3 : 7));
            }
        }
        TireRect();
    }

    QWidget fenetre;
    Pave * chevron = nullptr;
    LayoutHorizontalAvecChevron * layout = nullptr;
    QList<Pave *> paves; // null for a spacer
    Modele modele;

private:
    int Tire(int min, int max) { return static_cast<int>(monHasard.bounded(min, max + 1)); }

    void AjouteRessort()
    {
        layout->addItem(CreeRessort());
        paves.append(nullptr);
        // That of the window's style, which is the first.
        modele.items.append({{}, true, mesEspacements == -1 ? 3 : mesEspacements});
    }

    void AjoutePave(StyleEspace & style)
    {
        auto * const pave =
            new Pave(QSize(Tire(0, 4) == 0 ? 0 : Tire(1, 40), Tire(0, 25)), &fenetre);
        pave->setStyle(&style);
        layout->addWidget(pave);
        paves.append(pave);
        int const espacement = style.layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton,
                                                   Qt::Horizontal, nullptr, nullptr);
        modele.items.append(
            {pave->sizeHint(), false, mesEspacements == -1 ? espacement : mesEspacements});
    }

    // Half of the time within a few pixels of where some item ends, with or without the chevron.
    void TireRect()
    {
        QPoint const coin(Tire(0, 2) * 7, Tire(0, 2) * 5);
        int largeur = Tire(0, 250);
        if (!modele.items.isEmpty() && Tire(0, 1)) {
            largeur = 2 * modele.marge + Tire(-2, 2) + Tire(0, 1) * modele.chevron.width();
            int const rangs = Tire(1, static_cast<int>(modele.items.size()));
            for (int i = 0; i < rangs; ++i)
                largeur += modele.items.at(i).taille.width() * !modele.items.at(i).ressort +
                           modele.items.at(i).espacement;
        }
        modele.rect = QRect(coin, QSize(largeur, Tire(0, 40)));
    }

    QRandomGenerator & monHasard;
    int mesEspacements;
};

// What Qt leaves of the rectangle that a widget is given: nothing above its parent.
QRect DonneRectDansLeParent(QRect rect)
{
    rect.setTop(std::max(0, rect.top()));
    return rect;
}

QSize DonneTaillePreferee(QLayoutItem * item)
{
    return item->sizeHint();
}

} // namespace

class tst_LayoutHorizontalAvecChevronHasard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void rangeesAuHasard();
    void essaisAuHasard();

private:
    std::map<int, StyleEspace *> CreeStyles();
    void VerifiePlaces(Tirage const & tirage, Attendu const & attendu);
};

void tst_LayoutHorizontalAvecChevronHasard::cleanup()
{
    qDeleteAll(findChildren<StyleEspace *>());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

std::map<int, StyleEspace *> tst_LayoutHorizontalAvecChevronHasard::CreeStyles()
{
    std::map<int, StyleEspace *> styles;
    for (int const espacement : {3, 7}) {
        styles[espacement] = new StyleEspace(espacement);
        styles[espacement]->setParent(this);
    }
    return styles;
}

void tst_LayoutHorizontalAvecChevronHasard::VerifiePlaces(Tirage const & tirage,
                                                          Attendu const & attendu)
{
    for (int i = 0; i < tirage.paves.size(); ++i) {
        QCOMPARE(tirage.layout->ItemEstVisible(i), attendu.visibles.at(i));
        QLayoutItem * const item = tirage.layout->itemAt(i);
        if (!tirage.paves.at(i))
            QCOMPARE(item->sizeHint(), QSize(attendu.largeurRessort, 1));
        QCOMPARE(item->geometry(), tirage.paves.at(i)
                                       ? DonneRectDansLeParent(attendu.places.at(i))
                                       : attendu.places.at(i));
    }
    if (tirage.chevron)
        QCOMPARE(tirage.chevron->geometry(), attendu.chevron);
}

void tst_LayoutHorizontalAvecChevronHasard::rangeesAuHasard()
{
    QRandomGenerator hasard(54);
    auto const styles = CreeStyles();
    int debordements = 0;
    for (int i = 0; i < kRangees; ++i) {
        Tirage tirage(hasard, styles);
        Attendu const attendu = tirage.modele.Calcule(true);
        tirage.layout->setGeometry(tirage.modele.rect);
        VerifiePlaces(tirage, attendu);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QStringLiteral("in row %1").arg(i)));
        debordements += attendu.visibles.contains(false) && attendu.visibles.contains(true);
    }
    // The rows are of use only if many break somewhere in the middle.
    QVERIFY(debordements > kRangees / 10);
}

void tst_LayoutHorizontalAvecChevronHasard::essaisAuHasard()
{
    QRandomGenerator hasard(72);
    auto const styles = CreeStyles();
    for (int i = 0; i < kRangees; ++i) {
        Tirage tirage(hasard, styles);
        tirage.layout->setGeometry(tirage.modele.rect);
        QList<QRect> avant;
        for (Pave const * const pave : tirage.paves)
            avant.append(pave ? pave->geometry() : QRect());
        auto const liste = tirage.layout->PreteListe();

        tirage.modele.rect = QRect(QPoint(0, 0), QSize(hasard.bounded(250), hasard.bounded(40)));
        Attendu const attendu = tirage.modele.Calcule(false);
        QCOMPARE(tirage.layout->TestDonneNombreItemMasque(tirage.modele.rect.size(),
                                                          DonneTaillePreferee),
                 attendu.visibles.count(false));
        QCOMPARE(tirage.layout->heightForWidth(tirage.modele.rect.width()), attendu.hauteur);
        QCOMPARE(tirage.layout->PreteListe(), liste);
        for (int j = 0; j < tirage.paves.size(); ++j)
            if (Pave const * const pave = tirage.paves.at(j))
                QCOMPARE(pave->geometry(), avant.at(j));
    }
}

QTEST_MAIN(tst_LayoutHorizontalAvecChevronHasard)
#include "tst_LayoutHorizontalAvecChevronHasard.moc"
