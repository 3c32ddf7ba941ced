// tests/controls/tst_DLabelElisionRendu.cpp
#include "controls/DLabelElision.h"

#include "controls/EssaisElision.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace EssaisElision;

class tst_DLabelElisionRendu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void debutOuFinVisible_data();
    void debutOuFinVisible();
    void dernierCaractereEntier_data();
    void dernierCaractereEntier();
    void placeDeLEllipse_data();
    void placeDeLEllipse();
    void ellipseContreLeTexte_data();
    void ellipseContreLeTexte();
    void italiqueADroite();
    void droiteAGauche_data();
    void droiteAGauche();
    void alignementDuTexteQuiTient_data();
    void alignementDuTexteQuiTient();
    void ellipseSansPlace();
};

void tst_DLabelElisionRendu::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DLabelElisionRendu::debutOuFinVisible_data()
{
    QTest::addColumn<DLabelElision::Elision>("mode");
    QTest::addColumn<bool>("debut");
    QTest::addColumn<bool>("fin");
    QTest::newRow("no elision") << DLabelElision::kSansElision << true << false;
    QTest::newRow("the end gives way") << DLabelElision::kElisionFin << true << false;
    QTest::newRow("the beginning gives way") << DLabelElision::kElisionDebut << false << true;
}

void tst_DLabelElisionRendu::debutOuFinVisible()
{
    QFETCH(DLabelElision::Elision, mode);
    QFETCH(bool, debut);
    QFETCH(bool, fin);
    DLabelElision label(kBalisay, nullptr);
    label.PrendsModeElision(mode);
    label.resize(label.sizeHint() - QSize(label.fontMetrics().horizontalAdvance(u'M') + 2, 0));

    QImage const image = Rends(label);

    QCOMPARE(Encre::BornesDe(image, kCouleurDebut).isValid(), debut);
    QCOMPARE(Encre::BornesDe(image, kCouleurFin).isValid(), fin);
    QVERIFY(Encre::BornesEncre(image).right() <= label.width());
}

void tst_DLabelElisionRendu::dernierCaractereEntier_data()
{
    QTest::addColumn<Qt::Alignment>("alignement");
    QTest::newRow("left") << Qt::Alignment(Qt::AlignLeft);
    QTest::newRow("centre") << Qt::Alignment(Qt::AlignHCenter);
    QTest::newRow("right") << Qt::Alignment(Qt::AlignRight);
}

void tst_DLabelElisionRendu::dernierCaractereEntier()
{
    QFETCH(Qt::Alignment, alignement);
    DLabelElision label(kBalisay, nullptr);
    label.PrendsModeElision(DLabelElision::kElisionDebut);
    label.PrendsAlignement(QFlags<Qt::AlignmentFlag>(alignement));
    int const pleine = label.sizeHint().width();
    label.resize(pleine, label.sizeHint().height());
    int const entier = Encre::BornesDe(Rends(label), kCouleurFin).width();
    int const place = LargeurEllipse(label) + label.fontMetrics().horizontalAdvance(u'M') + 2;
    for (int largeur = place; largeur < pleine; ++largeur) {
        label.resize(largeur, label.height());
        QImage const image = Rends(label);
        QVERIFY(label.EstEliday());
        QVERIFY2(Encre::BornesDe(image, kCouleurFin).width() >= entier - 1,
                 qPrintable(QString::number(largeur)));
        QVERIFY(Encre::BornesEncre(image).right() <= largeur);
        QVERIFY(!Encre::BornesDe(image, kCouleurDebut).isValid());
    }
}

void tst_DLabelElisionRendu::placeDeLEllipse_data()
{
    QTest::addColumn<DLabelElision::Elision>("mode");
    QTest::addColumn<Qt::Alignment>("alignement");
    for (auto const mode : {DLabelElision::kElisionFin, DLabelElision::kElisionDebut}) {
        QTest::addRow("left, mode %d", mode) << mode << Qt::Alignment(Qt::AlignLeft);
        QTest::addRow("centre, mode %d", mode) << mode << Qt::Alignment(Qt::AlignHCenter);
        QTest::addRow("right, mode %d", mode) << mode << Qt::Alignment(Qt::AlignRight);
    }
}

void tst_DLabelElisionRendu::placeDeLEllipse()
{
    QFETCH(DLabelElision::Elision, mode);
    QFETCH(Qt::Alignment, alignement);
    DLabelElision label(kBalisay, nullptr);
    label.PrendsModeElision(mode);
    label.PrendsAlignement(QFlags<Qt::AlignmentFlag>(alignement));
    label.PrendsCouleurFondElipse(kCouleurEllipse);
    label.resize(label.sizeHint() - QSize(20, 0));

    QImage const image = Rends(label);
    QRect const ellipse = Encre::BornesDe(image, kCouleurEllipse);
    QRect const encre = Encre::BornesEncre(image);

    QVERIFY(qAbs(ellipse.width() - LargeurEllipse(label)) <= 1);
    int const jeu = label.fontMetrics().maxWidth(); // of the character that was cut
    if (mode == DLabelElision::kElisionFin) {
        QVERIFY(ellipse.left() > Encre::BornesDe(image, kCouleurDebut).right());
        QVERIFY(encre.right() <= ellipse.right() + 1);
    } else {
        QVERIFY(ellipse.right() < Encre::BornesDe(image, kCouleurFin).left());
        QVERIFY(encre.left() >= ellipse.left() - 1);
    }
    if (alignement & Qt::AlignLeft)
        QVERIFY(encre.left() <= 1);
    else if (alignement & Qt::AlignRight)
        QVERIFY(qAbs(label.width() - 1 - encre.right()) <= 1);
    else
        QVERIFY(encre.left() <= jeu && label.width() - encre.right() <= jeu);
}

void tst_DLabelElisionRendu::ellipseContreLeTexte_data()
{
    placeDeLEllipse_data();
}

void tst_DLabelElisionRendu::ellipseContreLeTexte()
{
    QFETCH(DLabelElision::Elision, mode);
    QFETCH(Qt::Alignment, alignement);
    DLabelElision label(u"<span style='background-color:#00ff00'>WWWWWWWWWW</span>"_s, nullptr);
    label.PrendsModeElision(mode);
    label.PrendsAlignement(QFlags<Qt::AlignmentFlag>(alignement));
    label.PrendsCouleurFondElipse(kCouleurEllipse);
    int const lettre = label.fontMetrics().horizontalAdvance(u'W');
    label.resize(LargeurEllipse(label) + 3 * lettre + lettre / 2, label.sizeHint().height());

    QImage const image = Rends(label);
    QRect const ellipse = Encre::BornesDe(image, kCouleurEllipse);
    QRect const texte = Encre::BornesDe(image, kCouleurDebut);

    QVERIFY(texte.width() > 2 * lettre);
    if (mode == DLabelElision::kElisionFin)
        QVERIFY(qAbs(ellipse.left() - texte.right() - 1) <= 1);
    else
        QVERIFY(qAbs(texte.left() - ellipse.right() - 1) <= 1);
}

void tst_DLabelElisionRendu::italiqueADroite()
{
    // Slanted letters reach beyond their advance; the ellipsis does not follow them out of the
    // label.
    DLabelElision label(u"<i>fdfdfdfdfdfdfdfdfdfdfdfdfd</i>"_s, nullptr);
    label.PrendsAlignement(Qt::AlignRight);
    label.PrendsCouleurFondElipse(kCouleurEllipse);
    int const pleine = label.sizeHint().width();
    for (int largeur = pleine / 3; largeur < pleine; ++largeur) {
        label.resize(largeur, label.sizeHint().height());
        QImage const image = Rends(label);
        QVERIFY(qAbs(Encre::BornesDe(image, kCouleurEllipse).right() + 1 - largeur) <= 1);
        QVERIFY(Encre::BornesEncre(image).right() < largeur);
    }
}

void tst_DLabelElisionRendu::droiteAGauche_data()
{
    QTest::addColumn<DLabelElision::Elision>("mode");
    QTest::addColumn<bool>("ellipseAGauche");
    QTest::newRow("the end gives way") << DLabelElision::kElisionFin << true;
    QTest::newRow("the beginning gives way") << DLabelElision::kElisionDebut << false;
}

void tst_DLabelElisionRendu::droiteAGauche()
{
    QFETCH(DLabelElision::Elision, mode);
    QFETCH(bool, ellipseAGauche);
    DLabelElision label(u"שלום עולם שלום עולם"_s, nullptr);
    label.setLayoutDirection(Qt::RightToLeft);
    label.PrendsModeElision(mode);
    label.PrendsCouleurFondElipse(kCouleurEllipse);
    label.resize(label.sizeHint().width() * 2 / 3, label.sizeHint().height());

    QImage const image = Rends(label);
    QRect const ellipse = Encre::BornesDe(image, kCouleurEllipse);
    QRect const encre = Encre::BornesEncre(image);

    QVERIFY(label.EstEliday());
    QVERIFY(encre.width() > 2 * ellipse.width());
    if (ellipseAGauche)
        QVERIFY(qAbs(ellipse.left() - encre.left()) <= 1);
    else
        QVERIFY(qAbs(ellipse.right() - encre.right()) <= 1);
    QVERIFY(qAbs(label.width() - 1 - encre.right()) <= label.fontMetrics().averageCharWidth());
}

void tst_DLabelElisionRendu::alignementDuTexteQuiTient_data()
{
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::addColumn<Qt::Alignment>("alignement");
    QTest::addColumn<int>("place"); // -1 left, 0 centre, 1 right
    QTest::newRow("left") << Qt::LeftToRight << Qt::Alignment(Qt::AlignLeft) << -1;
    QTest::newRow("centre") << Qt::LeftToRight << Qt::Alignment(Qt::AlignHCenter) << 0;
    QTest::newRow("right") << Qt::LeftToRight << Qt::Alignment(Qt::AlignRight) << 1;
    QTest::newRow("mirrored left") << Qt::RightToLeft << Qt::Alignment(Qt::AlignLeft) << 1;
    QTest::newRow("mirrored right") << Qt::RightToLeft << Qt::Alignment(Qt::AlignRight) << -1;
    QTest::newRow("absolute left") << Qt::RightToLeft << (Qt::AlignLeft | Qt::AlignAbsolute) << -1;
}

void tst_DLabelElisionRendu::alignementDuTexteQuiTient()
{
    QFETCH(Qt::LayoutDirection, sens);
    QFETCH(Qt::Alignment, alignement);
    QFETCH(int, place);
    DLabelElision label(kBalisay, nullptr);
    label.setLayoutDirection(sens);
    label.PrendsAlignement(QFlags<Qt::AlignmentFlag>(alignement));
    label.resize(label.sizeHint() + QSize(60, 0));

    QRect const encre = Encre::BornesEncre(Rends(label));
    int const aGauche = encre.left();
    int const aDroite = label.width() - 1 - encre.right();

    if (place < 0)
        QVERIFY(aGauche <= 1);
    else if (place > 0)
        QVERIFY(aDroite <= 1);
    else
        QVERIFY(qAbs(aGauche - aDroite) <= 2);
    QVERIFY(aGauche + aDroite > 50);
}

void tst_DLabelElisionRendu::ellipseSansPlace()
{
    DLabelElision label(kBalisay, nullptr);
    int const ellipse = LargeurEllipse(label);
    for (auto const mode : {DLabelElision::kElisionFin, DLabelElision::kElisionDebut}) {
        label.PrendsModeElision(mode);
        for (int largeur = 0; largeur <= ellipse; ++largeur) {
            label.resize(largeur, label.sizeHint().height());
            QRect const encre = Encre::BornesEncre(Rends(label));
            QVERIFY(encre.right() < std::max(largeur, 1));
        }
        // The ellipsis alone is drawn in full where it just fits.
        QVERIFY(Encre::BornesEncre(Rends(label)).isValid());
    }
}

QTEST_MAIN(tst_DLabelElisionRendu)
#include "tst_DLabelElisionRendu.moc"
