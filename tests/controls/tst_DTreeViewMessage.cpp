// tests/controls/tst_DTreeViewMessage.cpp
#include "controls/DTreeView.h"

#include "controls/Encre.h"

#include <QHeaderView>
#include <QProxyStyle>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTaille(300, 200);
constexpr int kPixelsFont = 20;

QFont DonneFont()
{
    QFont font;
    font.setPixelSize(kPixelsFont);
    font.setBold(true); // strokes wider than a pixel
    return font;
}

int DonneHauteurLigne()
{
    return QFontMetrics(DonneFont()).height();
}

/// Counts the paint events of a widget, and the pixels that they covered.
class Temoin : public QObject
{
public:
    explicit Temoin(QWidget * widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent * evenement) override
    {
        if (evenement->type() == QEvent::Paint)
            maRegion |= static_cast<QPaintEvent *>(evenement)->region();
        return false;
    }

    QRegion maRegion;
};

/// Has a tree color the rows that it has room for below its last one.
class StyleRangeesVides : public QProxyStyle
{
public:
    int styleHint(StyleHint demande, QStyleOption const * option, QWidget const * widget,
                  QStyleHintReturn * retour) const override
    {
        if (demande == SH_ItemView_PaintAlternatingRowColorsForEmptyArea)
            return 1;
        return QProxyStyle::styleHint(demande, option, widget, retour);
    }
};

/// A shown tree on white, without a model; its header is hidden.
struct Banc
{
    Banc()
    {
        QPalette palette;
        palette.setColor(QPalette::Base, Qt::white);
        vue.setPalette(palette);
        vue.setFrameShape(QFrame::NoFrame);
        vue.setHeaderHidden(true);
        vue.header()->setFont(DonneFont());
        vue.resize(kTaille);
        vue.show();
    }

    QImage Peins()
    {
        QImage image = Encre::ImageBlanche(vue.viewport()->size());
        vue.viewport()->render(&image);
        return image;
    }
    QRect Encre() { return Encre::BornesEncre(Peins()); }
    /// By its color: a style may draw branches, the focus or the row under the mouse.
    bool MontreMessage() { return Encre::BornesDe(Peins(), Qt::gray).isValid(); }

    DTreeView vue;
};

std::unique_ptr<QStandardItemModel> DonneModele(int rangees)
{
    // Items without a text leave no ink.
    return std::make_unique<QStandardItemModel>(rangees, 1);
}

} // namespace

// The message of an empty tree.
class tst_DTreeViewMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void sansMessage();
    void sansModele();
    void modeleVideEtRempli();
    void racine();
    void modeleReinitialisay();
    void modeleDetruit();
    void modeleRemplacay();
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

// The base paints the empty tree until there is a message.
void tst_DTreeViewMessage::sansMessage()
{
    StyleRangeesVides style;
    Banc banc;
    auto const modele = DonneModele(0);
    QPalette palette = banc.vue.palette();
    palette.setColor(QPalette::AlternateBase, Qt::red);
    banc.vue.setPalette(palette);
    banc.vue.setStyle(&style);
    banc.vue.setAlternatingRowColors(true);
    auto const montreRangees = [&banc] { return Encre::BornesDe(banc.Peins(), Qt::red).isValid(); };
    for (auto * const vide : {static_cast<QStandardItemModel *>(nullptr), modele.get()}) {
        banc.vue.setModel(vide);
        QVERIFY(montreRangees());
    }
    banc.vue.AfficheMessageSiVide(u"Aucun mot"_s);
    QVERIFY(!montreRangees());
    modele->setRowCount(1);
    QVERIFY(montreRangees());
}

void tst_DTreeViewMessage::sansModele()
{
    Banc banc;
    QCoreApplication::processEvents();
    Temoin const temoin(banc.vue.viewport());
    banc.vue.AfficheMessageSiVide(u"Aucun mot"_s);
    QTRY_COMPARE(temoin.maRegion, QRegion(banc.vue.viewport()->rect()));
    QVERIFY(banc.MontreMessage());
}

// Each change repaints the whole view by itself.
void tst_DTreeViewMessage::modeleVideEtRempli()
{
    Banc banc;
    auto const modele = DonneModele(0);
    banc.vue.setModel(modele.get());
    banc.vue.AfficheMessageSiVide(u"Aucun mot"_s);
    QVERIFY(banc.MontreMessage());
    for (bool const rempli : {true, false, true, false}) {
        QCoreApplication::processEvents();
        Temoin const temoin(banc.vue.viewport());
        modele->setRowCount(rempli ? 1 : 0);
        QTRY_COMPARE(temoin.maRegion, QRegion(banc.vue.viewport()->rect()));
        QCOMPARE(banc.MontreMessage(), !rempli);
    }
}

// What counts is the rows that the view shows.
void tst_DTreeViewMessage::racine()
{
    Banc banc;
    auto const modele = DonneModele(2);
    auto * const parent = new QStandardItem;
    modele->setItem(0, 0, parent);
    banc.vue.setModel(modele.get());
    banc.vue.AfficheMessageSiVide(u"Aucun mot"_s);
    QVERIFY(!banc.MontreMessage());
    banc.vue.setRootIndex(parent->index());
    QVERIFY(banc.MontreMessage());
    parent->appendRow(new QStandardItem);
    QVERIFY(!banc.MontreMessage());
    parent->removeRow(0);
    QVERIFY(banc.MontreMessage());
    banc.vue.setRootIndex({});
    QVERIFY(!banc.MontreMessage());
}

void tst_DTreeViewMessage::modeleReinitialisay()
{
    Banc banc;
    auto const modele = DonneModele(3);
    banc.vue.setModel(modele.get());
    banc.vue.AfficheMessageSiVide(u"Aucun mot"_s);
    QVERIFY(!banc.MontreMessage());
    QCoreApplication::processEvents();
    Temoin const temoin(banc.vue.viewport());
    modele->clear();
    QTRY_COMPARE(temoin.maRegion, QRegion(banc.vue.viewport()->rect()));
    QVERIFY(banc.MontreMessage());
}

void tst_DTreeViewMessage::modeleDetruit()
{
    Banc banc;
    auto modele = DonneModele(3);
    banc.vue.setModel(modele.get());
    banc.vue.AfficheMessageSiVide(u"Aucun mot"_s);
    QVERIFY(!banc.MontreMessage());
    QCoreApplication::processEvents();
    Temoin const temoin(banc.vue.viewport());
    modele.reset();
    QTRY_COMPARE(temoin.maRegion, QRegion(banc.vue.viewport()->rect()));
    QVERIFY(banc.MontreMessage());
}

void tst_DTreeViewMessage::modeleRemplacay()
{
    Banc banc;
    auto const plein = DonneModele(3);
    auto const vide = DonneModele(0);
    banc.vue.AfficheMessageSiVide(u"Aucun mot"_s);
    for (QStandardItemModel * const modele :
         {plein.get(), vide.get(), plein.get(), static_cast<QStandardItemModel *>(nullptr)}) {
        QCoreApplication::processEvents();
        Temoin const temoin(banc.vue.viewport());
        banc.vue.setModel(modele);
        QTRY_COMPARE(temoin.maRegion, QRegion(banc.vue.viewport()->rect()));
        QCOMPARE(banc.MontreMessage(), modele != plein.get());
    }
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
