// tests/controls/tst_DLabelElisionRendu.cpp
#include "controls/DLabelElision.h"

#include "controls/Encre.h"
#include "foundation/TailleTexte.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

// The background of a character tells where it stands, whatever the font.
constexpr QColor kCouleurDebut(0, 255, 0);
constexpr QColor kCouleurFin(0, 0, 255);
constexpr QColor kCouleurEllipse(255, 0, 0);

QString const kBalisay = u"<span style='background-color:#00ff00'>W</span>un mot, un autre "
                         "<span style='background-color:#0000ff'>M</span>"_s;

// A label that counts what is asked of it.
class LabelCompteur : public DLabelElision
{
public:
    using DLabelElision::DLabelElision;
    int mesRedimensionnements = 0;
    QSize maTaille;

protected:
    void resizeEvent(QResizeEvent * evenement) override
    {
        ++mesRedimensionnements;
        maTaille = evenement->size();
        DLabelElision::resizeEvent(evenement);
    }
};

QImage Rends(DLabelElision & label, QSize const & marge = QSize(40, 10), double ratio = 1.0)
{
    QImage image = Encre::ImageBlanche(label.size() + marge, ratio);
    QPainter peintre(&image);
    label.render(&peintre, QPoint(), QRegion(), QFlags<QWidget::RenderFlag>());
    return image;
}

int LargeurEllipse(QWidget const & widget)
{
    return RoutinesGeneralesQt::DonneTailleTexteBrut(u"…"_s, widget.font()).width();
}

} // namespace

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
    void droiteAGauche_data();
    void droiteAGauche();
    void alignementDuTexteQuiTient_data();
    void alignementDuTexteQuiTient();
    void ellipseSansPlace();
    void grasApresElision();
    void couleurs();
    void couleurDeLaPalette();
    void fondEllipse();
    void deleguaySansMiseEnPage();
    void tailleDeLAppelantGardee();
    void plusieursPeintures();
    void peintreRetrouvay();
    void deuxChemins();
    void ratios_data();
    void ratios();
    void peintreNul();
    void peintureSansBoucle();
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

void tst_DLabelElisionRendu::grasApresElision()
{
    DLabelElision maigre(u"mmmmmmmm mmmmmmmmm"_s, nullptr);
    DLabelElision gras(u"<b>mmmmmmmm</b> mmmmmmmmm"_s, nullptr);
    int const largeur = 4 * maigre.fontMetrics().horizontalAdvance(u'm') + LargeurEllipse(maigre);
    QRect const premier(0, 0, maigre.fontMetrics().horizontalAdvance(u'm'), maigre.height());
    for (DLabelElision * const label : {&maigre, &gras}) {
        label->resize(largeur, label->sizeHint().height());
        QVERIFY(label->EstEliday());
    }
    QVERIFY(Encre::Noirceur(Rends(gras).copy(premier)) >
            Encre::Noirceur(Rends(maigre).copy(premier)));
}

void tst_DLabelElisionRendu::couleurs()
{
    DLabelElision label(u"▇▇▇▇▇"_s, nullptr);
    label.resize(label.sizeHint());
    QImage image = Encre::ImageBlanche(label.size());
    {
        QPainter peintre(&image);
        peintre.setPen(Qt::red);
        label.render(&peintre); // the pen stays: no colour was given
    }
    QVERIFY(Encre::BornesDe(image, Qt::red).isValid());

    label.PrendsCouleurBase(Qt::blue);
    image.fill(Qt::white);
    {
        QPainter peintre(&image);
        peintre.setPen(Qt::red);
        label.render(&peintre);
    }
    QVERIFY(!Encre::BornesDe(image, Qt::red).isValid());
    QVERIFY(Encre::BornesDe(image, Qt::blue).isValid());

    label.PrendsCouleurBase(QColor());
    image.fill(Qt::white);
    {
        QPainter peintre(&image);
        peintre.setPen(Qt::red);
        label.render(&peintre);
    }
    QVERIFY(Encre::BornesDe(image, Qt::red).isValid());
}

void tst_DLabelElisionRendu::couleurDeLaPalette()
{
    DLabelElision label(u"▇▇▇▇▇"_s, nullptr);
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::WindowText, Qt::red);
    palette.setColor(QPalette::Inactive, QPalette::WindowText, Qt::red);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::green);
    palette.setColor(QPalette::Window, Qt::white);
    label.PrendsPalette(palette);
    label.resize(label.sizeHint());

    QVERIFY(Encre::BornesDe(label.grab().toImage(), Qt::red).isValid());
    label.setEnabled(false);
    QVERIFY(Encre::BornesDe(label.grab().toImage(), Qt::green).isValid());
    label.PrendsCouleurBase(Qt::blue);
    QVERIFY(Encre::BornesDe(label.grab().toImage(), Qt::blue).isValid());
}

void tst_DLabelElisionRendu::fondEllipse()
{
    DLabelElision label(u"un mot, un autre"_s, nullptr);
    label.PrendsCouleurFondElipse(kCouleurEllipse);
    label.resize(label.sizeHint());
    QVERIFY(!Encre::BornesDe(Rends(label), kCouleurEllipse).isValid()); // it fits

    label.resize(label.width() - 10, label.height());
    QVERIFY(Encre::BornesDe(Rends(label), kCouleurEllipse).isValid());

    label.PrendsCouleurFondElipse(Qt::transparent);
    QVERIFY(!Encre::BornesDe(Rends(label), kCouleurEllipse).isValid());
}

void tst_DLabelElisionRendu::deleguaySansMiseEnPage()
{
    LabelCompteur label;
    label.PrendsTexte(u"un texte"_s, false);
    QVERIFY(!label.testAttribute(Qt::WA_Resized));
    QSize const taille = label.size();

    QVERIFY(Encre::BornesEncre(Rends(label)).isValid());

    QVERIFY(label.testAttribute(Qt::WA_Resized));
    QCOMPARE(label.mesRedimensionnements, 1);
    QCOMPARE(label.maTaille, taille);
    QVERIFY(!label.isVisible());
    Rends(label);
    QCOMPARE(label.mesRedimensionnements, 1);

    // As a delegate does for row after row.
    for (int const largeur : {50, 200, 30, 30, 500}) {
        label.resize(largeur, 20);
        QImage const image = Rends(label);
        QCOMPARE(label.EstEliday(), largeur < label.sizeHint().width());
        QVERIFY(Encre::BornesEncre(image).right() <= largeur);
    }
}

void tst_DLabelElisionRendu::tailleDeLAppelantGardee()
{
    DLabelElision label(u"un mot, un autre"_s, nullptr);
    label.AjusteElision(QSize(40, 20)); // in a label of its first size, which is far larger

    QVERIFY(Encre::BornesEncre(Rends(label)).right() <= 40);

    label.PrendsTexte(u"un mot, un autre mot"_s, false);
    QVERIFY(Encre::BornesEncre(Rends(label)).right() > 40);
}

void tst_DLabelElisionRendu::plusieursPeintures()
{
    DLabelElision label(u"un mot, un autre"_s, nullptr);
    QSize const hint = label.sizeHint();
    label.resize(2 * hint.width(), 4 * hint.height());
    QRect const avant = Encre::BornesEncre(Rends(label));
    QFont grande(label.font());
    grande.setPixelSize(2 * QFontInfo(grande).pixelSize());

    label.PrendsPolice(grande);
    QRect const apres = Encre::BornesEncre(Rends(label));
    QVERIFY(apres.height() > avant.height());
    QVERIFY(label.EstEliday() == (label.sizeHint().width() > label.width()));

    // The painter's own font does not matter.
    QImage image = Encre::ImageBlanche(label.size() + QSize(40, 10));
    QPainter peintre(&image);
    peintre.setFont(QFont(grande.family(), 40));
    label.render(&peintre);
    peintre.end();
    QCOMPARE(Encre::BornesEncre(image), apres);
}

void tst_DLabelElisionRendu::peintreRetrouvay()
{
    DLabelElision label(kBalisay, nullptr);
    label.PrendsCouleurBase(Qt::blue);
    label.resize(50, 20);
    QImage image = Encre::ImageBlanche(QSize(200, 60));
    QPainter peintre(&image);
    peintre.setPen(Qt::green);
    peintre.translate(5, 6);
    QFont const police = peintre.font();
    QTransform const transformation = peintre.transform();

    label.render(&peintre, QPoint(20, 30));

    QCOMPARE(peintre.pen().color(), QColor(Qt::green));
    QCOMPARE(peintre.font(), police);
    QCOMPARE(peintre.transform(), transformation);
    QVERIFY(!peintre.hasClipping());
    peintre.end();
    QRect const debut = Encre::BornesDe(image, kCouleurDebut);
    QVERIFY(qAbs(debut.left() - 25) <= 1);
    QCOMPARE(debut.top(), 36);
}

void tst_DLabelElisionRendu::deuxChemins()
{
    DLabelElision label(kBalisay, nullptr);
    label.PrendsCouleurFondElipse(kCouleurEllipse);
    label.resize(60, 30);
    QImage const directe = Rends(label);
    QImage parLaBase = Encre::ImageBlanche(directe.size());
    QPainter peintre(&parLaBase);
    static_cast<QWidget &>(label).render(&peintre, QPoint(), QRegion(), QWidget::DrawChildren);
    peintre.end();
    QImage surImage = Encre::ImageBlanche(directe.size());
    label.render(&surImage, QPoint(), QRegion(), QWidget::DrawChildren);

    for (QImage const & image : {parLaBase, surImage})
        for (QColor const & couleur : {kCouleurDebut, kCouleurEllipse})
            QCOMPARE(Encre::BornesDe(image, couleur), Encre::BornesDe(directe, couleur));
}

void tst_DLabelElisionRendu::ratios_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("1.25") << 1.25;
    QTest::newRow("2") << 2.0;
}

void tst_DLabelElisionRendu::ratios()
{
    QFETCH(double, ratio);
    DLabelElision label(kBalisay, nullptr);
    label.PrendsModeElision(DLabelElision::kElisionDebut);
    label.PrendsCouleurFondElipse(kCouleurEllipse);
    label.resize(label.sizeHint() - QSize(20, 0));

    QImage const image = Rends(label, QSize(40, 10), ratio);

    QVERIFY(Encre::BornesEncre(image).right() <= (label.width() + 1) * ratio);
    QRect const ellipse = Encre::BornesDe(image, kCouleurEllipse);
    QVERIFY(qAbs(ellipse.width() - LargeurEllipse(label) * ratio) <= 2);
    QVERIFY(ellipse.right() < Encre::BornesDe(image, kCouleurFin).left());
}

void tst_DLabelElisionRendu::peintreNul()
{
    DLabelElision label(u"abc"_s, nullptr);
    label.render(static_cast<QPainter *>(nullptr), QPoint(), QRegion(),
                 QFlags<QWidget::RenderFlag>());
}

void tst_DLabelElisionRendu::peintureSansBoucle()
{
    struct Compteur : DLabelElision
    {
        int peintures = 0;
        void paintEvent(QPaintEvent * evenement) override
        {
            ++peintures;
            DLabelElision::paintEvent(evenement);
        }
    } label;
    label.PrendsTexte(u"un mot, un autre"_s, false);
    label.resize(40, 20);
    label.show();
    QTRY_VERIFY(label.peintures > 0);
    QCoreApplication::processEvents();
    int const avant = label.peintures;

    label.PrendsTexte(u"un autre texte"_s, false);
    QTRY_COMPARE(label.peintures, avant + 1);
    QCoreApplication::processEvents(); // its layout asked for no further painting
    QCoreApplication::processEvents();
    QCOMPARE(label.peintures, avant + 1);
}

QTEST_MAIN(tst_DLabelElisionRendu)
#include "tst_DLabelElisionRendu.moc"
