// tests/controls/tst_DLabelElision.cpp
#include "controls/DLabelElision.h"

#include "controls/EssaisElision.h"

#include <QtTest>

using namespace EssaisElision;
using namespace Qt::StringLiterals;

namespace {

QString const kLong = u"un chemin/vers un dossier/assez loin/du depart.txt"_s;
QString const kMot = u"anticonstitutionnellement"_s;

} // namespace

class tst_DLabelElision : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void initialement();
    void elisionSelonLargeur_data();
    void elisionSelonLargeur();
    void sansModeJamaisEliday();
    void longueurCompteEllipse();
    void tailleInvalideIgnoree();
    void tailleDonneeTientJusquAuRedimensionnement();
    void largeursExtremes_data();
    void largeursExtremes();
    void alignement();
    void police();
    void policeDuParent();
    void palette();
    void taillesConseillees();
};

void tst_DLabelElision::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DLabelElision::initialement()
{
    QWidget parent;
    DLabelElision const label(u"abc"_s, &parent);
    QCOMPARE(label.parentWidget(), &parent);
    QCOMPARE(label.DonneTexte(), u"abc"_s);

    DLabelElision vide(nullptr);
    QCOMPARE(vide.DonneTexte(), QString());
    QCOMPARE(vide.DonneModeElision(), DLabelElision::kElisionFin);
    QCOMPARE(vide.DonneCouleurFondElipse(), QColor(Qt::transparent));
    QCOMPARE(vide.DonnePolice(), vide.font());
    QVERIFY(!vide.EstEliday());
    QCOMPARE(vide.DonneLongueurLigne(), 0);

    QCOMPARE(int(DLabelElision::kSansElision), 0);
    QCOMPARE(int(DLabelElision::kElisionFin), 1);
    QCOMPARE(int(DLabelElision::kElisionDebut), 2);
}

void tst_DLabelElision::elisionSelonLargeur_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<DLabelElision::Elision>("mode");
    QTest::addColumn<int>("ecart"); // of the width from that of the text
    QTest::addColumn<bool>("elidee");
    struct
    {
        char const * nom;
        QString texte;
    } const textes[] = {{"words", kLong},
                        {"one word", kMot},
                        {"rich", u"un <b>mot</b> en <i>gras et d'autres</i>"_s},
                        {"right to left", u"שלום עולם שלום עולם"_s},
                        {"blanks at the end", u"abc def   "_s}};
    for (auto const & texte : textes)
        for (auto const mode : {DLabelElision::kElisionFin, DLabelElision::kElisionDebut})
            for (int const ecart : {-10, -1, 0, 1, 50})
                QTest::addRow("%s, mode %d, %d", texte.nom, mode, ecart)
                    << texte.texte << mode << ecart << (ecart < 0);
}

void tst_DLabelElision::elisionSelonLargeur()
{
    QFETCH(QString, texte);
    QFETCH(DLabelElision::Elision, mode);
    QFETCH(int, ecart);
    QFETCH(bool, elidee);
    DLabelElision label(texte, nullptr);
    label.PrendsModeElision(mode);

    label.resize(label.sizeHint() + QSize(ecart, 0));

    QCOMPARE(label.EstEliday(), elidee);
    QVERIFY(label.DonneLongueurLigne() <= label.width() + 1); // a fraction is rounded up
    QVERIFY(label.DonneLongueurLigne() > 0);
}

void tst_DLabelElision::sansModeJamaisEliday()
{
    DLabelElision label(kLong, nullptr);
    label.PrendsModeElision(DLabelElision::kSansElision);
    QCOMPARE(label.DonneModeElision(), DLabelElision::kSansElision);

    label.resize(40, 20);

    QVERIFY(!label.EstEliday());
    QVERIFY(label.DonneLongueurLigne() <= 40);
    QCOMPARE(label.DonneTexteAvecElision(40), kLong);
}

void tst_DLabelElision::longueurCompteEllipse()
{
    DLabelElision label(kLong, nullptr);
    int const pleine = label.sizeHint().width();
    label.AjusteElision(QSize(pleine, 20));
    QCOMPARE(label.DonneLongueurLigne(), pleine);

    int const ellipse = LargeurEllipse(label);
    int const largeur = ellipse + label.fontMetrics().horizontalAdvance(kLong.first(3)) + 1;
    label.AjusteElision(QSize(largeur, 20));
    QVERIFY(label.EstEliday());
    QVERIFY(label.DonneLongueurLigne() >
            ellipse + label.fontMetrics().horizontalAdvance(kLong.first(1)));

    label.AjusteElision(QSize(ellipse, 20)); // not one character beside it
    QCOMPARE(label.DonneLongueurLigne(), ellipse);
}

void tst_DLabelElision::tailleInvalideIgnoree()
{
    DLabelElision label(kLong, nullptr);
    label.AjusteElision(QSize(40, 20));
    int const longueur = label.DonneLongueurLigne();

    label.AjusteElision(QSize());

    QVERIFY(label.EstEliday());
    QCOMPARE(label.DonneLongueurLigne(), longueur);
}

void tst_DLabelElision::tailleDonneeTientJusquAuRedimensionnement()
{
    DLabelElision label(kLong, nullptr);
    label.resize(label.sizeHint());
    label.AjusteElision(QSize(40, 20));
    QVERIFY(label.EstEliday());
    label.sizeHint();
    QVERIFY(label.EstEliday());

    label.resize(label.sizeHint() + QSize(1, 0));
    QVERIFY(!label.EstEliday());
}

void tst_DLabelElision::largeursExtremes_data()
{
    QTest::addColumn<QString>("texte");
    QTest::newRow("empty") << QString();
    QTest::newRow("one letter") << u"W"_s;
    QTest::newRow("words") << kLong;
    QTest::newRow("a pair of surrogates") << u"😀😀"_s;
    QTest::newRow("a lone surrogate") << QString(QChar(0xD83D)) + u"abc"_s;
    QTest::newRow("combining marks") << u"e\u0301e\u0301e\u0301"_s;
    QTest::newRow("tabs") << u"a\tb\tc"_s;
    QTest::newRow("only blanks") << u"          "_s;
    QTest::newRow("an image") << u"<img src=\"absente.png\">abc"_s;
    QTest::newRow("soft hyphens") << u"abc\u00ADdef\u00ADghi"_s;
}

void tst_DLabelElision::largeursExtremes()
{
    QFETCH(QString, texte);
    DLabelElision label(texte, nullptr);
    int const ellipse = LargeurEllipse(label);
    for (auto const mode :
         {DLabelElision::kSansElision, DLabelElision::kElisionFin, DLabelElision::kElisionDebut}) {
        label.PrendsModeElision(mode);
        for (int largeur = 0; largeur <= label.sizeHint().width() + 2; ++largeur) {
            label.AjusteElision(QSize(largeur, 10));
            if (label.EstEliday())
                QVERIFY(label.DonneLongueurLigne() <= std::max(largeur + 1, ellipse));
        }
        QVERIFY(!label.EstEliday());
    }
}

void tst_DLabelElision::alignement()
{
    DLabelElision label;
    for (auto const alignement :
         {Qt::AlignRight | Qt::AlignVCenter, Qt::Alignment(Qt::AlignHCenter),
          Qt::AlignLeft | Qt::AlignAbsolute}) {
        label.PrendsAlignement(alignement);
        QCOMPARE(label.DonneAlignement(), alignement);
    }
}

void tst_DLabelElision::police()
{
    DLabelElision label(kLong, nullptr);
    label.AjusteElision(QSize(label.sizeHint().width(), 20));
    QFont grande(label.font());
    grande.setPixelSize(60);

    label.PrendsPolice(grande);

    QCOMPARE(label.DonnePolice(), grande);
    QCOMPARE(label.font().pixelSize(), 60);
    QCOMPARE(label.sizeHint().height(), QFontMetrics(grande).height());
    QVERIFY(label.sizeHint().width() > 30 * 10);
    label.resize(30 * 10, 60);
    QVERIFY(label.EstEliday());
    QFont petite(label.font());
    petite.setPixelSize(2);
    label.PrendsPolice(petite);
    QVERIFY(!label.EstEliday());
}

void tst_DLabelElision::policeDuParent()
{
    QWidget parent;
    DLabelElision label(kLong, &parent);
    QFont police(parent.font());
    police.setPixelSize(40);

    parent.setFont(police);

    QCOMPARE(label.DonnePolice().pixelSize(), 40);
    QCOMPARE(label.minimumSizeHint().height(), QFontMetrics(police).height());

    // Deliberate: the text has the font that was given, whatever the widget has from its parent.
    QFont grasse;
    grasse.setBold(true);
    label.PrendsPolice(grasse);
    QCOMPARE(label.font().pixelSize(), 40);
    QCOMPARE(label.DonnePolice(), grasse);
    QCOMPARE(label.sizeHint().height(), QFontMetrics(grasse).height());
}

void tst_DLabelElision::palette()
{
    DLabelElision label;
    QPalette rouge;
    rouge.setColor(QPalette::WindowText, Qt::red);
    label.PrendsPalette(rouge);
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::red));

    label.PrendsCouleurFondElipse(Qt::green);
    QCOMPARE(label.DonneCouleurFondElipse(), QColor(Qt::green));
}

void tst_DLabelElision::taillesConseillees()
{
    DLabelElision label(kLong, nullptr);
    QSize const minimale = label.minimumSizeHint();
    QVERIFY(minimale.width() < 0);
    QCOMPARE(minimale.height(), label.fontMetrics().height());
    QCOMPARE(label.sizeHint().height(), label.fontMetrics().height());
    QVERIFY(qAbs(label.sizeHint().width() - label.fontMetrics().horizontalAdvance(kLong)) <= 2);

    label.PrendsTexte(u"a"_s, false);
    QVERIFY(label.sizeHint().width() < label.fontMetrics().horizontalAdvance(kLong));
    label.PrendsTexte(QString(), false);
    QCOMPARE(label.sizeHint(), QSize(0, label.fontMetrics().height()));
}

QTEST_MAIN(tst_DLabelElision)
#include "tst_DLabelElision.moc"
