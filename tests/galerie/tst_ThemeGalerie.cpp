// tests/galerie/tst_ThemeGalerie.cpp
#include "ThemeGalerie.h"

#include "foundation/ThemesQt.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_ThemeGalerie : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void valeurRefusee_data();
    void valeurRefusee();
    void boucleADeux();
    void referenceResteUneReference();
    void couleurRemplaceReference();
    void reinitialisation();
    void palette();
    void variableManquante();
    void bordsSombres_data();
    void bordsSombres();
    void iconesInactives_data();
    void iconesInactives();

private:
    ThemeGalerie monTheme;
};

void tst_ThemeGalerie::initTestCase()
{
    QApplication::setStyle(u"Fusion"_s); // whose edges the palette is adapted to
}

void tst_ThemeGalerie::init()
{
    monTheme.Reinitialise();
}

void tst_ThemeGalerie::cleanup()
{
    ThemesQt::DetruisToi();
}

void tst_ThemeGalerie::valeurRefusee_data()
{
    QTest::addColumn<QString>("valeur");
    QTest::newRow("an unknown name") << u"@inconnue"_s;
    QTest::newRow("no name behind the prefix") << u"@"_s;
    QTest::newRow("an unknown name behind text") << u"1px solid @inconnue"_s;
    QTest::newRow("its own name") << u"@couleurBordure"_s;
    QTest::newRow("its own name behind text") << u"1px solid @couleurBordure, 2px"_s;
}

void tst_ThemeGalerie::valeurRefusee()
{
    QFETCH(QString, valeur);
    QString const avant = monTheme.DonneValeur(u"couleurBordure"_s);

    QVERIFY(!monTheme.Remplace(u"couleurBordure"_s, valeur));

    QCOMPARE(monTheme.DonneValeur(u"couleurBordure"_s), avant);
}

void tst_ThemeGalerie::boucleADeux()
{
    QVERIFY(monTheme.Remplace(u"couleurBordure"_s, u"@couleurBordureGui"_s));
    QVERIFY(monTheme.Remplace(u"couleurBordureGui"_s, u"@couleurBordureGeneral"_s));

    QVERIFY(!monTheme.Remplace(u"couleurBordureGeneral"_s, u"@couleurBordure"_s));
}

void tst_ThemeGalerie::referenceResteUneReference()
{
    QVERIFY(monTheme.Remplace(u"couleurBordure"_s, u"@couleurTexteLien"_s));

    QCOMPARE(monTheme.DonneValeur(u"couleurBordure"_s), u"@couleurTexteLien"_s);
    QCOMPARE(ThemesQt::Instance()->DonneCouleur(u"couleurBordure"_s), QColor(24, 126, 188));
}

void tst_ThemeGalerie::couleurRemplaceReference()
{
    QVERIFY(monTheme.Remplace(u"couleurBordure"_s, u"@couleurTexteLien"_s));

    monTheme.Remplace(u"couleurBordure"_s, QColor(1, 2, 3, 4));

    QCOMPARE(monTheme.DonneValeur(u"couleurBordure"_s), u"rgba(1,2,3,4)"_s);
    // The way back is free again.
    QVERIFY(monTheme.Remplace(u"couleurTexteLien"_s, u"@couleurBordure"_s));
}

void tst_ThemeGalerie::reinitialisation()
{
    monTheme.Assombris();
    QVERIFY(monTheme.Applique());
    QVERIFY(ThemesQt::Instance()->DonneCouleur(u"couleurFondBlanc"_s) != QColor(Qt::white));

    monTheme.Reinitialise();
    QVERIFY(monTheme.Applique());

    QCOMPARE(ThemesQt::Instance()->DonneCouleur(u"couleurFondBlanc"_s), QColor(Qt::white));
    QCOMPARE(QApplication::palette().color(QPalette::Base), QColor(Qt::white));
}

void tst_ThemeGalerie::palette()
{
    QVERIFY(monTheme.Remplace(u"couleurFondBlanc"_s, u"rgba(10,20,30,255)"_s));
    QVERIFY(monTheme.Applique());
    QCOMPARE(QApplication::palette().color(QPalette::Base), QColor(10, 20, 30));

    // A text that is no colour paints nothing: the palette keeps what it had.
    QVERIFY(monTheme.Remplace(u"couleurFondBlanc"_s, u"blanc"_s));
    QVERIFY(monTheme.Applique());
    QVERIFY(QApplication::palette().color(QPalette::Base).isValid());
}

void tst_ThemeGalerie::variableManquante()
{
    QVERIFY(monTheme.Applique());
    QString const feuille = qApp->styleSheet();
    QPalette const palette = QApplication::palette();
    // A table of defaults lacks the variable that the application adds for the general sheet.
    ThemesQt::DetruisToi();
    ThemesQt::Instance()->AjouterVariable(u"couleurFondBlanc"_s, QColor(1, 2, 3));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(u"unknown variables: widgetListeEditableFontSize"_s));

    QVERIFY(!monTheme.Applique());

    QCOMPARE(qApp->styleSheet(), feuille);
    QCOMPARE(QApplication::palette(), palette);
}

void tst_ThemeGalerie::bordsSombres_data()
{
    QTest::addColumn<bool>("sombre");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void tst_ThemeGalerie::bordsSombres()
{
    QFETCH(bool, sombre);
    if (sombre)
        monTheme.Assombris();
    QVERIFY(monTheme.Applique());

    QWidget fenetre;
    auto * const caseACocher = new QCheckBox(&fenetre);
    caseACocher->resize(40, 40);
    QImage const image = fenetre.grab(caseACocher->geometry()).toImage();
    // Across the middle: the edge is what differs most from the window around it.
    QStyleOptionButton option;
    option.initFrom(caseACocher);
    QRect const boite =
        caseACocher->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, caseACocher);
    int const fond = image.pixelColor(39, 39).lightness();
    int contraste = 0;
    for (int x = 0; x < boite.right(); ++x)
        contraste = std::max(contraste,
                             std::abs(image.pixelColor(x, boite.center().y()).lightness() - fond));
    QVERIFY2(contraste >= 40, qPrintable(QString::number(contraste)));
}

void tst_ThemeGalerie::iconesInactives_data()
{
    QTest::addColumn<QString>("icone");
    QTest::addColumn<bool>("sombre");
    for (char const * const nom :
         {"Options_Recherche", "recherchePrecedente", "rechercheSuivante", "rechercheX"})
        for (bool const sombre : {false, true})
            QTest::addRow("%s, %s", nom, sombre ? "dark" : "light")
                << u":/Images/%1.svg"_s.arg(QLatin1StringView(nom)) << sombre;
}

// Seen on the window, dimmer than when it is enabled, but there.
void tst_ThemeGalerie::iconesInactives()
{
    QFETCH(QString, icone);
    QFETCH(bool, sombre);
    ThemeGalerie theme(u"Fusion"_s);
    theme.Reinitialise();
    if (sombre)
        theme.Assombris();
    QVERIFY(theme.Applique());
    auto const contraste = [&icone](QIcon::Mode mode) {
        QColor const fond = QApplication::palette().color(QPalette::Window);
        QImage image(QSize(16, 16), QImage::Format_RGB32);
        image.fill(fond);
        QPainter peintre(&image);
        QIcon(icone).paint(&peintre, image.rect(), Qt::AlignCenter, mode);
        int maximum = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                maximum = std::max(maximum, std::abs(qGray(image.pixel(x, y)) - qGray(fond.rgb())));
        return maximum;
    };

    QCOMPARE_GT(contraste(QIcon::Normal), 60); // of 255
    QCOMPARE_LT(contraste(QIcon::Disabled), contraste(QIcon::Normal) / 2);
    QCOMPARE_GT(contraste(QIcon::Disabled), 10);
}

QTEST_MAIN(tst_ThemeGalerie)
#include "tst_ThemeGalerie.moc"
