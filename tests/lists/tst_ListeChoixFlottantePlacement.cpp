#include "lists/ListeChoixFlottante.h"

#include "lists/EssaisListeChoix.h"

#include <QScreen>
#include <QStandardItemModel>
#include <QtTest>

using namespace EssaisListeChoix;
using namespace Qt::StringLiterals;

// Where the list stands, and when it follows its field.

class tst_ListeChoixFlottantePlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void place_data();
    void place();
    void placeDeChampImbrique();
    void placeDeFenetre();
    void sansWidget();
    void moveApresShow();
    void fenetreDeplacee();
    void listeCacheeImmobile();
    void champDeplace();
    void listeVideeDeplacee();
    void autreWidget();
};

namespace {

// The list begins on the last row of pixels of the field.
QPoint CoinDe(QWidget const & widget)
{
    return widget.mapToGlobal(QPoint(0, widget.height() - 1));
}

class Temoin : public QObject
{
public:
    QList<QEvent::Type> evenements;

protected:
    bool eventFilter(QObject *, QEvent * evenement) override
    {
        if (evenement->type() == QEvent::Show || evenement->type() == QEvent::Move)
            evenements.append(evenement->type());
        return false;
    }
};

} // namespace

void tst_ListeChoixFlottantePlacement::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ListeChoixFlottantePlacement::place_data()
{
    QTest::addColumn<QPoint>("coin"); // of the host's window
    QRect const ecran = QGuiApplication::primaryScreen()->geometry();
    QTest::newRow("inside the screen") << ecran.topLeft() + QPoint(60, 40);
    // Deliberate: the list stays with its field, wherever that is.
    QTest::newRow("at the lower edge") << ecran.bottomLeft() - QPoint(0, 50);
    QTest::newRow("at the right edge") << ecran.topRight() - QPoint(40, 0);
    QTest::newRow("over the left edge") << ecran.topLeft() - QPoint(200, 0);
    QTest::newRow("over the upper edge") << ecran.topLeft() - QPoint(0, 100);
    QTest::newRow("on no screen") << ecran.bottomRight() + QPoint(500, 500);
}

void tst_ListeChoixFlottantePlacement::place()
{
    QFETCH(QPoint, coin);
    Hote hote;
    hote.fenetre.move(coin);
    for (int const nombre : {1, 10, 1000}) {
        hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(nombre)));
        QCOMPARE(hote.liste->pos(), CoinDe(*hote.champ));
    }
    QCOMPARE(hote.liste->pos(), hote.fenetre.geometry().topLeft() + QPoint(20, 30 + 28 - 1));
}

void tst_ListeChoixFlottantePlacement::placeDeChampImbrique()
{
    Hote hote;
    QWidget cadre(&hote.fenetre);
    cadre.setGeometry(15, 25, 200, 100);
    hote.champ->setParent(&cadre);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    QCOMPARE(hote.liste->pos(), hote.fenetre.geometry().topLeft() + QPoint(15 + 20, 25 + 30 + 27));
    hote.champ->setParent(&hote.fenetre);
}

void tst_ListeChoixFlottantePlacement::placeDeFenetre()
{
    // A linked window, with a parent or without, has its geometry on the screen.
    Hote hote;
    hote.liste->MetsWidgetLiay(&hote.fenetre);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    QCOMPARE(hote.liste->pos(), hote.fenetre.geometry().bottomLeft());
    QWidget fille(&hote.fenetre, Qt::Window);
    fille.setGeometry(300, 20, 50, 60);
    fille.show();
    hote.liste->MetsWidgetLiay(&fille);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    QCOMPARE(hote.liste->pos(), fille.geometry().bottomLeft());
    hote.liste->MetsWidgetLiay(nullptr);
}

void tst_ListeChoixFlottantePlacement::sansWidget()
{
    QWidget reference;
    reference.resize(100, 20);
    ListeChoixFlottante liste(nullptr, false, nullptr, &reference);
    liste.move(50, 60);
    liste.ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    QVERIFY(liste.isVisible());
    QCOMPARE(liste.pos(), QPoint(0, 0));
    liste.move(50, 60);
    liste.ActualisePosListeChoix();
    QCOMPARE(liste.pos(), QPoint(0, 0));
}

void tst_ListeChoixFlottantePlacement::moveApresShow()
{
    Hote hote;
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    hote.liste->CacheToi();
    hote.fenetre.move(200, 100);
    Temoin temoin;
    hote.liste->installEventFilter(&temoin);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    QCOMPARE(temoin.evenements, QList<QEvent::Type>({QEvent::Show, QEvent::Move}));
    QCOMPARE(hote.liste->pos(), CoinDe(*hote.champ));
}

void tst_ListeChoixFlottantePlacement::fenetreDeplacee()
{
    Hote hote;
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    QPoint const avant = hote.liste->pos();
    hote.fenetre.move(hote.fenetre.pos() + QPoint(70, -30));
    QCOMPARE(hote.liste->pos(), avant); // the list knows from its host only
    Q_EMIT hote.interfaceHote.SignalParentDeplacay();
    QCOMPARE(hote.liste->pos(), avant + QPoint(70, -30));
}

void tst_ListeChoixFlottantePlacement::listeCacheeImmobile()
{
    Hote hote;
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    QPoint const avant = hote.liste->pos();
    hote.liste->CacheToi();
    hote.fenetre.move(hote.fenetre.pos() + QPoint(70, -30));
    Q_EMIT hote.interfaceHote.SignalParentDeplacay();
    hote.liste->ActualisePosListeChoix();
    QCOMPARE(hote.liste->pos(), avant);
    QVERIFY(hote.liste->isHidden());
}

void tst_ListeChoixFlottantePlacement::champDeplace()
{
    Hote hote;
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    hote.champ->setGeometry(40, 70, 240, 50);
    hote.liste->ActualisePosListeChoix();
    QCOMPARE(hote.liste->pos(), hote.fenetre.geometry().topLeft() + QPoint(40, 70 + 49));
}

void tst_ListeChoixFlottantePlacement::listeVideeDeplacee()
{
    // Deliberate: without rows the list belongs nowhere.
    Hote hote;
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    hote.liste->DebuteActualisation();
    Q_EMIT hote.interfaceHote.SignalParentDeplacay();
    QCOMPARE(hote.liste->pos(), QPoint(0, 0));
    hote.liste->TermineActualisation();
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(1)));
    QCOMPARE(hote.liste->pos(), CoinDe(*hote.champ));
}

void tst_ListeChoixFlottantePlacement::autreWidget()
{
    Hote hote;
    QWidget autre(&hote.fenetre);
    autre.setGeometry(100, 120, 50, 20);
    autre.show();
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    hote.liste->MetsWidgetLiay(&autre);
    QCOMPARE(hote.liste->pos(), CoinDe(*hote.champ));
    hote.liste->ActualisePosListeChoix();
    QCOMPARE(hote.liste->pos(), CoinDe(autre));
    QCOMPARE(hote.liste->maximumWidth(), hote.liste->width()); // the reference stays
}

QTEST_MAIN(tst_ListeChoixFlottantePlacement)
#include "tst_ListeChoixFlottantePlacement.moc"
