// tests/controls/tst_DTreeViewMessage.cpp
#include "controls/EssaisMessage.h"

#include <QScrollBar>
#include <QtTest>

using namespace EssaisMessage;
using namespace Qt::StringLiterals;

// The message of an empty tree: how it looks, and where it stands.
class tst_DTreeViewMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void gris();
    void enHautAGauche();
    void coupeALaLargeur();
    void fontDeLEntete();
    void enteteVisible();
    void texteVide();
    void texteChangay();
    void finDeLigne();
    void motTresLong();
    void vueEtroite();
    void droiteAGauche();
    void vueDesactivee();
    void defilement();
    void repeintALaTaille();
};

void tst_DTreeViewMessage::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTreeViewMessage::gris()
{
    Banc banc;
    banc.vue.AfficheMessageSiVide(u"MMMM"_s);
    QImage const image = banc.Peins();
    QCOMPARE(Encre::PlusSombre(image), QColor(Qt::gray).lightness());
    QVERIFY(Encre::BornesDe(image, Qt::gray).isValid());
}

void tst_DTreeViewMessage::enHautAGauche()
{
    Banc banc;
    banc.vue.AfficheMessageSiVide(u"MM"_s);
    QRect const encre = banc.Encre();
    QVERIFY(encre.left() < kPixelsFont / 2);
    QVERIFY(encre.right() < kTaille.width() / 2);
    QVERIFY(encre.bottom() < DonneHauteurLigne());
}

void tst_DTreeViewMessage::coupeALaLargeur()
{
    Banc banc;
    banc.vue.AfficheMessageSiVide(u"MM "_s.repeated(30));
    QRect const encre = banc.Encre();
    QVERIFY(encre.top() < DonneHauteurLigne());
    QVERIFY(encre.bottom() > 2 * DonneHauteurLigne());
    QVERIFY(encre.left() < kPixelsFont / 2); // no line stands in the middle

    banc.vue.AfficheMessageSiVide(u"MM "_s.repeated(30) + u"I"_s);
    banc.vue.resize(5000, kTaille.height());
    QVERIFY(banc.Encre().bottom() < DonneHauteurLigne());
}

void tst_DTreeViewMessage::fontDeLEntete()
{
    Banc banc;
    banc.vue.AfficheMessageSiVide(u"M"_s);
    int const hauteur = banc.Encre().height();
    QFont grande = DonneFont();
    banc.vue.setFont(grande); // of the rows
    QCOMPARE(banc.Encre().height(), hauteur);
    grande.setPixelSize(3 * kPixelsFont);
    banc.vue.setFont(grande);
    QCOMPARE(banc.Encre().height(), hauteur);
    banc.vue.header()->setFont(grande);
    QVERIFY(banc.Encre().height() > 2 * hauteur);
}

// The viewport begins under the header, and the text one more header's height below.
void tst_DTreeViewMessage::enteteVisible()
{
    Banc banc;
    auto const modele = DonneModele(0);
    banc.vue.setModel(modele.get());
    banc.vue.AfficheMessageSiVide(u"M"_s);
    QRect const sans = banc.Encre();
    banc.vue.setHeaderHidden(false);
    QCoreApplication::processEvents();
    QVERIFY(banc.vue.viewport()->y() >= banc.vue.header()->height());
    QCOMPARE(banc.Encre(), sans.translated(0, banc.vue.header()->height()));
    banc.vue.setHeaderHidden(true);
    QCoreApplication::processEvents();
    QCOMPARE(banc.Encre(), sans);
}

void tst_DTreeViewMessage::texteVide()
{
    Banc banc;
    for (auto const & texte : {QString(), u""_s, u"   "_s}) {
        banc.vue.AfficheMessageSiVide(texte);
        QVERIFY(!banc.MontreMessage());
    }
}

void tst_DTreeViewMessage::texteChangay()
{
    Banc banc;
    banc.vue.AfficheMessageSiVide(u"MMMM"_s);
    int const largeur = banc.Encre().width();
    banc.vue.AfficheMessageSiVide(u"MM"_s);
    QVERIFY(banc.Encre().width() < largeur);
    banc.vue.AfficheMessageSiVide({});
    QVERIFY(!banc.MontreMessage());
}

void tst_DTreeViewMessage::finDeLigne()
{
    Banc banc;
    banc.vue.AfficheMessageSiVide(u"M\nM"_s);
    QRect const encre = banc.Encre();
    QVERIFY(encre.bottom() > DonneHauteurLigne());
    QVERIFY(encre.bottom() < 2 * DonneHauteurLigne() + kPixelsFont);
}

// It is cut off at the edge, not broken.
void tst_DTreeViewMessage::motTresLong()
{
    Banc banc;
    banc.vue.AfficheMessageSiVide(u"M"_s.repeated(200));
    QRect const encre = banc.Encre();
    QVERIFY(encre.bottom() < DonneHauteurLigne());
    QVERIFY(encre.right() > kTaille.width() - kPixelsFont);
}

void tst_DTreeViewMessage::vueEtroite()
{
    Banc banc;
    banc.vue.AfficheMessageSiVide(u"M M M M"_s);
    banc.vue.resize(kPixelsFont * 3 / 2, kTaille.height());
    QVERIFY(banc.Encre().bottom() > 3 * DonneHauteurLigne());
    banc.vue.resize(1, 1);
    banc.Peins();
    banc.vue.resize(0, 0);
    banc.Peins();
}

// Neither a layout nor a text from right to left leaves the left edge.
void tst_DTreeViewMessage::droiteAGauche()
{
    Banc banc;
    banc.vue.AfficheMessageSiVide(u"MM"_s);
    QRect const gauche = banc.Encre();
    banc.vue.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(banc.Encre(), gauche);
    banc.vue.AfficheMessageSiVide(u"\u05D0\u05D1\u05D2"_s);
    QVERIFY(banc.Encre().isValid());
    QVERIFY(banc.Encre().right() < kTaille.width() / 2);
}

void tst_DTreeViewMessage::vueDesactivee()
{
    Banc banc;
    banc.vue.AfficheMessageSiVide(u"MMMM"_s);
    banc.vue.setEnabled(false);
    QVERIFY(Encre::BornesDe(banc.Peins(), Qt::gray).isValid());
}

// The text stays where it is when the header, wider than the view, is scrolled.
void tst_DTreeViewMessage::defilement()
{
    Banc banc;
    auto const modele = DonneModele(0);
    banc.vue.setModel(modele.get());
    banc.vue.header()->setStretchLastSection(false);
    banc.vue.header()->resizeSection(0, 1000);
    banc.vue.AfficheMessageSiVide(u"MM"_s);
    QTRY_VERIFY(banc.vue.horizontalScrollBar()->maximum() > 0);
    QRect const avant = banc.Encre();
    QCoreApplication::processEvents();
    Temoin const temoin(banc.vue.viewport());
    banc.vue.horizontalScrollBar()->setValue(100);
    QTRY_COMPARE(temoin.maRegion, QRegion(banc.vue.viewport()->rect()));
    QCOMPARE(banc.Encre(), avant);
}

void tst_DTreeViewMessage::repeintALaTaille()
{
    Banc banc;
    banc.vue.AfficheMessageSiVide(u"MM "_s.repeated(10));
    QCoreApplication::processEvents();
    Temoin const temoin(banc.vue.viewport());
    banc.vue.resize(150, kTaille.height());
    QTRY_COMPARE(temoin.maRegion, QRegion(banc.vue.viewport()->rect()));
}

QTEST_MAIN(tst_DTreeViewMessage)
#include "tst_DTreeViewMessage.moc"
