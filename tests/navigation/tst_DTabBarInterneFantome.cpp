// navigation/tst_DTabBarInterneFantome.cpp
// The picture that follows the mouse, and the tool tip that is set aside meanwhile.
#include "RangeeDEssai.h"

using namespace Qt::StringLiterals;

class tst_DTabBarInterneFantome : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void fantomeSuitLaSouris();
    void fantomeMontreLOnglet();
    void fantomeNeSuitPasLaFeuilleDeLaFenetre();
    void fantomeMalgreLaFeuilleDeLApplication();
    void fantomeAncienNestPasRepris();
    void fenetreCacheeAuDessous();
    void ongletSansCadrePartSansFantome();
    void infobulleDeCoteUneFois();
    void infobulleVideRevientVide();
};

void tst_DTabBarInterneFantome::fantomeSuitLaSouris()
{
    RangeeDEssai source(2);
    source.Expose();

    source.Presse(1);
    source.Deplace(QPoint(300, 310));
    QPointer<QWidget> const fantome = TrouveFantome();
    QVERIFY(fantome);
    QCOMPARE(fantome->pos(), QPoint(300, 310));
    QCOMPARE(fantome->size(), source.barre->DonneInfos(1).cadre->size());
    QVERIFY(qAbs(fantome->windowOpacity() - 0.75) < 0.01);
    QVERIFY(fantome->testAttribute(Qt::WA_TransparentForMouseEvents));
    QVERIFY(fantome->windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(fantome->windowFlags().testFlag(Qt::Tool));
    QCOMPARE(fantome->palette().brush(fantome->backgroundRole()).texture().size(),
             source.barre->DonneInfos(1).cadre->grab().size());
    QCOMPARE(fantome->styleSheet(), u"border: 1px solid #D0D0D0"_s);
    QVERIFY(!QApplication::activeWindow() || QApplication::activeWindow() == &source);

    source.Deplace(QPoint(20, 500));
    QCOMPARE(TrouveFantome(), fantome.data());
    QCOMPARE(fantome->pos(), QPoint(20, 500));
    source.Relache(QPoint(20, 500));
    QVERIFY(!fantome->isVisible());
}

void tst_DTabBarInterneFantome::fantomeMontreLOnglet()
{
    RangeeDEssai source(2);
    QPixmap rouge(20, 20);
    rouge.fill(Qt::red);
    source.barre->MetsIconeOnglet(1, QIcon(rouge));
    source.Expose();
    QRect const icone = source.barre->DonneInfos(1).etiquetteIcone->geometry();

    source.Presse(1);
    source.Deplace(QPoint(300, 310));
    QImage const image = TrouveFantome()->grab().toImage();
    double const ratio = image.devicePixelRatio();

    QCOMPARE(image.pixelColor((QPointF(icone.center()) * ratio).toPoint()), QColor(Qt::red));
    QCOMPARE(image.pixelColor(0, image.height() / 2), QColor(u"#D0D0D0"_s));
}

void tst_DTabBarInterneFantome::fantomeNeSuitPasLaFeuilleDeLaFenetre()
{
    RangeeDEssai source(2);
    QPixmap rouge(20, 20);
    rouge.fill(Qt::red);
    source.barre->MetsIconeOnglet(1, QIcon(rouge));
    source.setStyleSheet(u"QWidget { background: blue; }"_s);
    source.Expose();
    QRect const icone = source.barre->DonneInfos(1).etiquetteIcone->geometry();

    source.Presse(1);
    source.Deplace(QPoint(300, 310));
    QImage const image = TrouveFantome()->grab().toImage();

    QCOMPARE(image.pixelColor((QPointF(icone.center()) * image.devicePixelRatio()).toPoint()),
             QColor(Qt::red));
}

void tst_DTabBarInterneFantome::fantomeMalgreLaFeuilleDeLApplication()
{
    RangeeDEssai source(2);
    QPixmap rouge(20, 20);
    rouge.fill(Qt::red);
    source.barre->MetsIconeOnglet(1, QIcon(rouge));
    qApp->setStyleSheet(u"QWidget { background: blue; }"_s);
    auto const rends = qScopeGuard([] { qApp->setStyleSheet(QString()); });
    source.Expose();
    QRect const icone = source.barre->DonneInfos(1).etiquetteIcone->geometry();

    source.Presse(1);
    source.Deplace(QPoint(300, 310));
    QImage const image = TrouveFantome()->grab().toImage();

    QCOMPARE(image.pixelColor((QPointF(icone.center()) * image.devicePixelRatio()).toPoint()),
             QColor(Qt::red));
}

void tst_DTabBarInterneFantome::fantomeAncienNestPasRepris()
{
    RangeeDEssai source(2);
    QPixmap couleur(20, 20);
    couleur.fill(Qt::red);
    source.barre->MetsIconeOnglet(1, QIcon(couleur));
    source.Expose();
    QPoint const centre = source.barre->DonneInfos(1).etiquetteIcone->geometry().center();

    source.Presse(1);
    source.Deplace(QPoint(300, 310));
    source.Relache(QPoint(300, 310));
    couleur.fill(Qt::green);
    source.barre->MetsIconeOnglet(1, QIcon(couleur));
    source.Presse(1);
    source.Deplace(QPoint(300, 310));
    QImage const image = TrouveFantome()->grab().toImage();

    QCOMPARE(image.pixelColor((QPointF(centre) * image.devicePixelRatio()).toPoint()),
             QColor(Qt::green));
}

void tst_DTabBarInterneFantome::fenetreCacheeAuDessous()
{
    RangeeDEssai source(2);
    RangeeDEssai cible(2, "groupe", {40, 300});
    RangeeDEssai cachee(2, "groupe", {40, 300});
    source.Expose();
    cible.Expose();
    cachee.Expose();
    cachee.hide();

    source.Presse(1);
    for (int i = 0; i < 2; ++i) // the second time with the picture in between
        source.Deplace(cible.DonnePoint(1));

    QVERIFY(!cible.barre->DonnePositionIndicateur().isNull());
    QVERIFY(cachee.barre->DonnePositionIndicateur().isNull());
}

void tst_DTabBarInterneFantome::ongletSansCadrePartSansFantome()
{
    RangeeDEssai source;
    source.barre->addTab(u"Sans cadre"_s);
    source.Expose();
    QSignalSpy espion(source.barre, &DTabBarInterne::SignalOngletNouvelleFenetre);

    source.Presse(0);
    source.Deplace(source.DonneAuDessous());
    QVERIFY(source.barre->EstEnDeplacementExterne());
    QVERIFY(!TrouveFantome());
    source.Relache(source.DonneAuDessous());

    QCOMPARE(espion.count(), 1);
}

void tst_DTabBarInterneFantome::infobulleDeCoteUneFois()
{
    RangeeDEssai source(3);
    source.Expose();
    QStringList const infobulles = source.DonneInfobulles();

    source.Presse(1);
    for (int i = 0; i < 3; ++i) {
        source.Deplace(source.DonneAuDessous() + QPoint(i, i));
        QCOMPARE(source.barre->tabToolTip(1), QString());
    }
    source.Deplace(source.DonnePoint(1));

    QCOMPARE(source.DonneInfobulles(), infobulles);
}

void tst_DTabBarInterneFantome::infobulleVideRevientVide()
{
    RangeeDEssai source(3);
    source.barre->setTabToolTip(1, QString());
    source.Expose();
    QStringList const infobulles = source.DonneInfobulles();

    source.Presse(1);
    source.Deplace(source.DonneAuDessous());
    source.Deplace(source.DonneAuDessous() + QPoint(1, 1));
    source.Relache(source.DonneAuDessous());

    QCOMPARE(source.DonneInfobulles(), infobulles);
}

QTEST_MAIN(tst_DTabBarInterneFantome)
#include "tst_DTabBarInterneFantome.moc"
