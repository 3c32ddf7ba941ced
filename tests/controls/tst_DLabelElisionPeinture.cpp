// tests/controls/tst_DLabelElisionPeinture.cpp
#include "controls/DLabelElision.h"

#include "controls/EssaisElision.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace EssaisElision;

namespace {

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

} // namespace

class tst_DLabelElisionPeinture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
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

void tst_DLabelElisionPeinture::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DLabelElisionPeinture::grasApresElision()
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

void tst_DLabelElisionPeinture::couleurs()
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

void tst_DLabelElisionPeinture::couleurDeLaPalette()
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

void tst_DLabelElisionPeinture::fondEllipse()
{
    DLabelElision label(u"un mot, un autre"_s, nullptr);
    label.PrendsCouleurFondElipse(kCouleurEllipse);
    label.resize(label.sizeHint());
    QVERIFY(!Encre::BornesDe(Rends(label), kCouleurEllipse).isValid()); // it fits

    label.resize(label.width() - 10, label.height());
    QVERIFY(Encre::BornesDe(Rends(label), kCouleurEllipse).isValid());

    for (QColor const & sansFond : {QColor(Qt::transparent), QColor()}) {
        label.PrendsCouleurFondElipse(sansFond);
        QImage const image = Rends(label);
        QVERIFY(!Encre::BornesDe(image, kCouleurEllipse).isValid());
        QCOMPARE(image.pixelColor(label.width() - 2, 0), QColor(Qt::white));
    }
}

void tst_DLabelElisionPeinture::deleguaySansMiseEnPage()
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

void tst_DLabelElisionPeinture::tailleDeLAppelantGardee()
{
    DLabelElision label(u"un mot, un autre"_s, nullptr);
    label.AjusteElision(QSize(40, 20)); // in a label of its first size, which is far larger

    QVERIFY(Encre::BornesEncre(Rends(label)).right() <= 40);

    label.PrendsTexte(u"un mot, un autre mot"_s, false);
    QVERIFY(Encre::BornesEncre(Rends(label)).right() > 40);
}

void tst_DLabelElisionPeinture::plusieursPeintures()
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

void tst_DLabelElisionPeinture::peintreRetrouvay()
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

void tst_DLabelElisionPeinture::deuxChemins()
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

void tst_DLabelElisionPeinture::ratios_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("1.25") << 1.25;
    QTest::newRow("2") << 2.0;
}

void tst_DLabelElisionPeinture::ratios()
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

void tst_DLabelElisionPeinture::peintreNul()
{
    DLabelElision label(u"abc"_s, nullptr);
    label.render(static_cast<QPainter *>(nullptr), QPoint(), QRegion(),
                 QFlags<QWidget::RenderFlag>());
}

void tst_DLabelElisionPeinture::peintureSansBoucle()
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

QTEST_MAIN(tst_DLabelElisionPeinture)
#include "tst_DLabelElisionPeinture.moc"
