// tests/style/tst_DStyleProxyBoutonParDefaut.cpp
#include "style/EssaisBoutons.h"

#include <QtTest>

class tst_DStyleProxyBoutonParDefaut : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void couleur_data();
    void couleur();
    void forme();
    void ligneDeFocus_data();
    void ligneDeFocus();

private:
    std::unique_ptr<BancBouton> monBanc;
};

void tst_DStyleProxyBoutonParDefaut::init()
{
    monBanc = std::make_unique<BancBouton>();
}

void tst_DStyleProxyBoutonParDefaut::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyBoutonParDefaut::couleur_data()
{
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<QPalette::ColorGroup>("groupe");
    QTest::addColumn<QColor>("attendue");
    QStyle::State const presse = kNormal | QStyle::State_Sunken;
    QTest::newRow("normal") << kNormal << QPalette::Active << kAccentActif;
    QTest::newRow("an inactive window's is active")
        << kNormal << QPalette::Inactive << kAccentActif;
    QTest::newRow("under the mouse") << QStyle::State(kNormal | QStyle::State_MouseOver)
                                     << QPalette::Active << kAccentActif.lighter(105);
    QTest::newRow("pressed") << presse << QPalette::Active << kAccentActif.lighter(110);
    QTest::newRow("pressed wins over the mouse") << QStyle::State(presse | QStyle::State_MouseOver)
                                                 << QPalette::Active << kAccentActif.lighter(110);
    QTest::newRow("disabled") << QStyle::State() << QPalette::Disabled << kAccentInerte;
}

void tst_DStyleProxyBoutonParDefaut::couleur()
{
    QFETCH(QStyle::State, etat);
    QFETCH(QPalette::ColorGroup, groupe);
    QFETCH(QColor, attendue);
    QStyleOptionButton option = DonneOption(etat, true);
    option.palette.setCurrentColorGroup(groupe);

    QImage const image = monBanc->PeinsBiseau(option);

    QVERIFY(monBanc->espion->appels.isEmpty());
    QCOMPARE(image.pixelColor(kRect.center()).rgba(), attendue.rgba());
    QCOMPARE(image.pixelColor(1, kRect.center().y()).rgba(), attendue.rgba()); // the outline too
}

// 1.5 units free on each side, of which the outline takes the inner half unit.
void tst_DStyleProxyBoutonParDefaut::forme()
{
    QImage const image = monBanc->PeinsBiseau(DonneOption(kNormal, true));

    QCOMPARE(Encre(image), kRect.adjusted(1, 1, -1, -1));
    QCOMPARE(image.pixelColor(30, 1), kAccentActif);
    QCOMPARE(image.pixelColor(30, 22), kAccentActif);
    QCOMPARE(image.pixelColor(58, 12), kAccentActif);
    // The corners' radius is that of the middle of the outline.
    QImage const attendue = Peins(kRect.size(), [](QPainter & peintre) {
        peintre.setRenderHint(QPainter::Antialiasing);
        peintre.setPen(kAccentActif);
        peintre.setBrush(kAccentActif);
        peintre.drawRoundedRect(QRectF(1.5, 1.5, 57.0, 21.0), 3.0, 3.0);
    });
    for (QPoint const coin : {QPoint(1, 1), QPoint(54, 1), QPoint(1, 18), QPoint(54, 18)}) {
        QRect const bloc(coin, QSize(5, 5));
        double const ecart = Couverture(image, bloc) - Couverture(attendue, bloc);
        QVERIFY2(qAbs(ecart) < 0.25, qPrintable(QString::number(ecart)));
    }
}

void tst_DStyleProxyBoutonParDefaut::ligneDeFocus_data()
{
    QTest::addColumn<bool>("focus");
    QTest::newRow("with the focus") << true;
    QTest::newRow("without") << false;
}

void tst_DStyleProxyBoutonParDefaut::ligneDeFocus()
{
    QFETCH(bool, focus);
    QStyleOptionButton option = DonneOption(kNormal, true);
    option.state.setFlag(QStyle::State_HasFocus, focus);
    MetsAccent(option.palette, QPalette::Active, Qt::white);

    QImage const image = monBanc->PeinsBiseau(option);

    // How dark the column is in all, from the alpha of 102: the line is one unit thick.
    auto const noirceur = [&image](int x) {
        int somme = 0;
        for (int y = kRect.height() / 2; y < kRect.height(); ++y)
            somme += Alpha(image, x, y) - qRed(image.pixel(x, y));
        return somme;
    };
    if (!focus) {
        QCOMPARE(noirceur(30), 0);
        return;
    }
    QVERIFY2(qAbs(noirceur(30) - 102) <= 1, qPrintable(QString::number(noirceur(30))));
    // 3 units in from the painted shape, which begins 1.5 in.
    QVERIFY(qAbs(noirceur(5) - 102) <= 1 && qAbs(noirceur(54) - 102) <= 1);
    QVERIFY(noirceur(3) == 0 && noirceur(56) == 0);
    QCOMPARE(image.pixelColor(30, 18), QColor(Qt::white)); // it lies along the bottom
}

QTEST_MAIN(tst_DStyleProxyBoutonParDefaut)
#include "tst_DStyleProxyBoutonParDefaut.moc"
