// tests/controls/tst_ElidedLabel.cpp
#include "controls/ElidedLabel.h"

#include "controls/Encre.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLargeur = 120;
QString const kTexte = u"le premier mot et le deuxieme mot et le dernier mot d'une longue phrase"_s;

QImage Grave(ElidedLabel & label)
{
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::WindowText, Qt::black);
    label.setPalette(palette);
    return label.grab().toImage();
}

// The number of lines that the text takes when nothing bounds its height.
int CompteLignes(QString const & texte, QFont const & police)
{
    QTextLayout layout(texte, police);
    layout.beginLayout();
    int nombre = 0;
    for (QTextLine ligne = layout.createLine(); ligne.isValid(); ligne = layout.createLine()) {
        ligne.setLineWidth(kLargeur);
        ++nombre;
    }
    layout.endLayout();
    return nombre;
}

} // namespace

class tst_ElidedLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void proprietes();
    void hauteurSuffisante_data();
    void hauteurSuffisante();
    void signalAuChangementSeul();
    void motTropLong();
    void sautDeLigne();
    void droiteAGauche_data();
    void droiteAGauche();
    void ellipseDuCoteDeLaFin_data();
    void ellipseDuCoteDeLaFin();
    void policeDuWidget();
    void cadreSansEffet();
    void vide();
    void detruitParSonSignal();
    void lectureEcran();
};

void tst_ElidedLabel::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ElidedLabel::proprietes()
{
    QWidget parent;
    ElidedLabel label(kTexte, &parent);
    QCOMPARE(label.parentWidget(), &parent);
    QCOMPARE(label.property("text").toString(), kTexte);
    QCOMPARE(label.property("isElided"), QVariant(false));
    QVERIFY(label.setProperty("text", u"court"_s));
    QCOMPARE(label.text(), u"court"_s);
    QVERIFY(!label.setProperty("isElided", true));
}

void tst_ElidedLabel::hauteurSuffisante_data()
{
    QTest::addColumn<int>("lignes"); // that the height has room for, less those of the text
    QTest::addColumn<int>("ecart");  // pixels
    QTest::addColumn<bool>("elidee");
    QTest::newRow("room for all") << 0 << 0 << false;
    QTest::newRow("room for more") << 2 << 0 << false;
    QTest::newRow("a pixel less than all") << 0 << -1 << true;
    QTest::newRow("room for one less") << -1 << 0 << true;
    QTest::newRow("room for none") << -100 << 1 << true;
}

void tst_ElidedLabel::hauteurSuffisante()
{
    QFETCH(int, lignes);
    QFETCH(int, ecart);
    QFETCH(bool, elidee);
    ElidedLabel label(kTexte, nullptr);
    int const total = CompteLignes(kTexte, label.font());
    QVERIFY(total >= 3);
    int const interligne = label.fontMetrics().lineSpacing();
    int const visibles = std::max(total + lignes, 0);
    label.resize(kLargeur, visibles * interligne + ecart);

    QRect const encre = Encre::BornesEncre(Grave(label));

    QCOMPARE(label.isElided(), elidee);
    // A line that does not fit at all is not begun, but the first.
    int const entieres = std::max((visibles * interligne + ecart) / interligne, 1);
    QVERIFY(encre.bottom() < entieres * interligne);
    QVERIFY(encre.bottom() >= (std::min(entieres, total) - 1) * interligne ||
            label.height() < interligne);
}

void tst_ElidedLabel::signalAuChangementSeul()
{
    ElidedLabel label(kTexte, nullptr);
    QSignalSpy espion(&label, &ElidedLabel::elisionChanged);
    label.resize(kLargeur, label.fontMetrics().lineSpacing());
    QVERIFY(!label.isElided()); // not before it is painted
    QCOMPARE(espion.count(), 0);

    Grave(label);
    Grave(label);
    QCOMPARE(espion.count(), 1);
    QCOMPARE(espion.at(0).at(0).toBool(), true);

    label.setText(u"mot"_s);
    QCOMPARE(espion.count(), 1);
    Grave(label);
    QCOMPARE(espion.count(), 2);
    QCOMPARE(espion.at(1).at(0).toBool(), false);
}

void tst_ElidedLabel::motTropLong()
{
    ElidedLabel label(QString(100, u'm'), nullptr);
    label.resize(kLargeur, label.fontMetrics().lineSpacing());
    QVERIFY(Encre::BornesEncre(Grave(label)).right() < kLargeur);
    QVERIFY(label.isElided());
}

void tst_ElidedLabel::sautDeLigne()
{
    ElidedLabel label(u"un\ndeux"_s, nullptr);
    int const interligne = label.fontMetrics().lineSpacing();
    label.resize(kLargeur, 2 * interligne);
    QRect const encre = Encre::BornesEncre(Grave(label));
    QVERIFY(!label.isElided());
    QVERIFY(encre.bottom() >= interligne);
    QCOMPARE(label.text(), u"un\ndeux"_s);

    label.resize(label.fontMetrics().horizontalAdvance(u"un d"_s), interligne);
    Grave(label);
    QVERIFY(label.isElided());
}

void tst_ElidedLabel::droiteAGauche_data()
{
    QTest::addColumn<QString>("mot");
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::newRow("latin, left to right") << u"mot "_s << Qt::LeftToRight;
    QTest::newRow("latin, right to left") << u"mot "_s << Qt::RightToLeft;
    QTest::newRow("hebrew, left to right") << u"שלום "_s << Qt::LeftToRight;
    QTest::newRow("hebrew, right to left") << u"שלום "_s << Qt::RightToLeft;
}

void tst_ElidedLabel::droiteAGauche()
{
    QFETCH(QString, mot);
    QFETCH(Qt::LayoutDirection, sens);
    ElidedLabel label(u"%1\n%1"_s.arg(mot), nullptr);
    label.setLayoutDirection(sens);
    QFontMetrics const mesures = label.fontMetrics();
    int const largeur = 3 * mesures.horizontalAdvance(mot); // most of each line is empty
    label.resize(largeur, 2 * mesures.lineSpacing());

    QImage const image = Grave(label);

    QVERIFY(!label.isElided());
    for (int const haut : {0, mesures.lineSpacing()}) {
        QRect const encre = Encre::BornesEncre(image.copy(0, haut, largeur, mesures.lineSpacing()));
        QVERIFY(encre.width() < largeur / 2);
        int const ecart = sens == Qt::LeftToRight ? encre.left() : largeur - encre.right();
        QVERIFY(ecart <= mesures.averageCharWidth());
    }
}

void tst_ElidedLabel::ellipseDuCoteDeLaFin_data()
{
    droiteAGauche_data();
}

void tst_ElidedLabel::ellipseDuCoteDeLaFin()
{
    QFETCH(QString, mot);
    QFETCH(Qt::LayoutDirection, sens);
    ElidedLabel label(mot.repeated(20), nullptr);
    label.setLayoutDirection(sens);
    label.resize(kLargeur, label.fontMetrics().lineSpacing());

    QImage const image = Grave(label);

    // The dots stand on the base line alone: above it, the side of the ellipsis is empty.
    QRect const haut =
        Encre::BornesEncre(image.copy(0, 0, kLargeur, label.fontMetrics().ascent() - 3));
    QVERIFY(label.isElided());
    int const ellipse = label.fontMetrics().horizontalAdvance(u'…') * 2 / 3;
    if (mot.isRightToLeft()) {
        QVERIFY(haut.left() >= ellipse);
        QVERIFY(kLargeur - haut.right() <= ellipse);
    } else {
        QVERIFY(kLargeur - haut.right() >= ellipse);
        QVERIFY(haut.left() <= ellipse);
    }
}

void tst_ElidedLabel::policeDuWidget()
{
    ElidedLabel label(kTexte, nullptr);
    label.resize(kLargeur, CompteLignes(kTexte, label.font()) * label.fontMetrics().lineSpacing());
    Grave(label);
    QVERIFY(!label.isElided());

    QFont grande(label.font());
    grande.setPixelSize(2 * QFontInfo(grande).pixelSize());
    label.setFont(grande);
    Grave(label);
    QVERIFY(label.isElided());
}

void tst_ElidedLabel::cadreSansEffet()
{
    // Deliberate: neither takes room from the text.
    ElidedLabel label(kTexte, nullptr);
    label.resize(kLargeur, CompteLignes(kTexte, label.font()) * label.fontMetrics().lineSpacing());
    label.setFrameStyle(QFrame::Box | QFrame::Plain);
    label.setLineWidth(5);
    label.setContentsMargins(10, 10, 10, 10);
    Grave(label);
    QVERIFY(!label.isElided());
}

void tst_ElidedLabel::vide()
{
    ElidedLabel label(QString(), nullptr);
    for (QSize const & taille : {QSize(0, 0), QSize(1, 1), QSize(100, 100)}) {
        label.resize(taille);
        QVERIFY(!Encre::BornesEncre(Grave(label)).isValid());
        QVERIFY(!label.isElided());
    }
}

void tst_ElidedLabel::detruitParSonSignal()
{
    QPointer<ElidedLabel> label(new ElidedLabel(kTexte, nullptr));
    label->resize(kLargeur, label->fontMetrics().lineSpacing());
    connect(label, &ElidedLabel::elisionChanged, label, &QObject::deleteLater);
    label->show();
    QTRY_VERIFY(label.isNull());
}

void tst_ElidedLabel::lectureEcran()
{
    ElidedLabel label(u"un"_s, nullptr);
    QCOMPARE(label.accessibleName(), u"un"_s);
    label.setText(u"deux"_s);
    QCOMPARE(label.accessibleName(), u"deux"_s);
    label.setAccessibleName(u"nom"_s);
    label.setText(u"trois"_s);
    QCOMPARE(label.accessibleName(), u"nom"_s);
}

QTEST_MAIN(tst_ElidedLabel)
#include "tst_ElidedLabel.moc"
