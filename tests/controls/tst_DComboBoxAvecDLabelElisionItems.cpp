// tests/controls/tst_DComboBoxAvecDLabelElisionItems.cpp
#include "controls/DComboBoxAvecDLabelElision.h"

#include "controls/Encre.h"
#include "controls/EssaisComboElision.h"
#include "controls/StyleTemoin.h"
#include "style/DStyleProxy.h"

#include <QtTest>

#include <algorithm>
#include <memory>

using namespace EssaisComboElision;
using namespace Qt::StringLiterals;

namespace {

constexpr QRect kLigne(0, 0, 200, 30);

QImage DessineItem(QComboBox const & combo, int ligne, QStyle::State etat,
                   Qt::TextElideMode elision = Qt::ElideRight,
                   Qt::LayoutDirection sens = Qt::LeftToRight)
{
    QStyleOptionViewItem option;
    option.initFrom(combo.view());
    option.rect = kLigne;
    option.widget = combo.view();
    option.font = combo.font();
    option.decorationSize = combo.iconSize();
    option.palette = FabriquePalette();
    option.state = etat;
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.textElideMode = elision;
    option.direction = sens;
    QImage image = Encre::ImageBlanche(kLigne.size());
    QPainter peintre(&image);
    combo.itemDelegate()->paint(&peintre, option, combo.model()->index(ligne, 0));
    return image;
}

} // namespace

class tst_DComboBoxAvecDLabelElisionItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void couleurDesItems_data();
    void couleurDesItems();
    void texteHorsDuStyle();
    void itemRiche_data();
    void itemRiche();
    void itemDroiteAGauche();
    void itemTropLong_data();
    void itemTropLong();
    void itemAvecIcone();
    void itemAvecCoche_data();
    void itemAvecCoche();
    void separateur();
    void hauteurDesItems();
};

void tst_DComboBoxAvecDLabelElisionItems::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboBoxAvecDLabelElisionItems::couleurDesItems_data()
{
    QTest::addColumn<bool>("ombre");
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<QPalette::ColorGroup>("groupe");
    QTest::addColumn<QPalette::ColorRole>("role");
    auto const actif = QStyle::State_Enabled | QStyle::State_Active;
    for (bool const ombre : {false, true}) {
        char const * const style = ombre ? "a shading style" : "Fusion";
        QTest::addRow("%s, normal", style) << ombre << actif << QPalette::Active << QPalette::Text;
        QTest::addRow("%s, hovered", style)
            << ombre << (actif | QStyle::State_MouseOver) << QPalette::Active << QPalette::Text;
        QTest::addRow("%s, disabled", style)
            << ombre << QStyle::State(QStyle::State_None) << QPalette::Disabled << QPalette::Text;
        QTest::addRow("%s, selected", style)
            << ombre << (actif | QStyle::State_Selected) << QPalette::Active
            << (ombre ? QPalette::Text : QPalette::HighlightedText);
    }
}

void tst_DComboBoxAvecDLabelElisionItems::couleurDesItems()
{
    QFETCH(bool, ombre);
    QFETCH(QStyle::State, etat);
    QFETCH(QPalette::ColorGroup, groupe);
    QFETCH(QPalette::ColorRole, role);
    StyleTemoin style;
    style.ombreLaSelection = ombre;
    DComboBoxAvecDLabelElision combo;
    combo.view()->setStyle(&style);
    combo.addItem(kPleins);

    QImage const image = DessineItem(combo, 0, etat);

    QColor const attendue = FabriquePalette().color(groupe, role);
    QVERIFY(Encre::BornesDe(image, attendue).isValid());
    for (QColor const & autre :
         {FabriquePalette().color(QPalette::Active, QPalette::Text),
          FabriquePalette().color(QPalette::Disabled, QPalette::Text), QColor(Qt::yellow)})
        if (autre != attendue)
            QVERIFY(!Encre::BornesDe(image, autre).isValid());
}

void tst_DComboBoxAvecDLabelElisionItems::texteHorsDuStyle()
{
    StyleTemoin style;
    DComboBoxAvecDLabelElision combo;
    combo.view()->setStyle(&style);
    combo.addItem(u"un texte"_s);

    QImage const image = DessineItem(combo, 0, QStyle::State_Enabled);

    QVERIFY(!style.mesItems.isEmpty());
    for (StyleTemoin::Item const & item : style.mesItems)
        QCOMPARE(item.texte, QString());
    QVERIFY(Encre::BornesEncre(image).isValid());
}

void tst_DComboBoxAvecDLabelElisionItems::itemRiche_data()
{
    QTest::addColumn<QVariant>("alignement");
    QTest::newRow("as the view has it") << QVariant();
    // Deliberate: a label is one line, in the middle of the row.
    QTest::newRow("at the top") << QVariant(int(Qt::AlignLeft | Qt::AlignTop));
}

void tst_DComboBoxAvecDLabelElisionItems::itemRiche()
{
    QFETCH(QVariant, alignement);
    DComboBoxAvecDLabelElision combo;
    combo.addItem(kRiche);
    combo.setItemData(0, alignement, Qt::TextAlignmentRole);
    QImage const image = DessineItem(combo, 0, QStyle::State_Enabled | QStyle::State_Active);
    QRect const vert = Encre::BornesDe(image, kVert);
    QVERIFY(vert.isValid());
    QVERIFY(qAbs(vert.center().y() - kLigne.center().y()) <= 2);
}

void tst_DComboBoxAvecDLabelElisionItems::itemDroiteAGauche()
{
    DComboBoxAvecDLabelElision combo;
    combo.addItem(kRiche);
    auto const etat = QStyle::State_Enabled | QStyle::State_Active;
    QRect const normal = Encre::BornesEncre(DessineItem(combo, 0, etat));
    QRect const miroir =
        Encre::BornesEncre(DessineItem(combo, 0, etat, Qt::ElideRight, Qt::RightToLeft));
    QVERIFY(qAbs(miroir.width() - normal.width()) <= 1);
    QVERIFY(normal.right() < kLigne.right() - 10);
    QVERIFY(qAbs(kLigne.right() - miroir.right() - normal.left()) <= 2);
}

void tst_DComboBoxAvecDLabelElisionItems::itemTropLong_data()
{
    QTest::addColumn<Qt::TextElideMode>("elision");
    QTest::addColumn<bool>("debut");
    QTest::newRow("right") << Qt::ElideRight << true;
    QTest::newRow("middle, as right") << Qt::ElideMiddle << true;
    QTest::newRow("none") << Qt::ElideNone << true;
    QTest::newRow("left") << Qt::ElideLeft << false;
}

void tst_DComboBoxAvecDLabelElisionItems::itemTropLong()
{
    QFETCH(Qt::TextElideMode, elision);
    QFETCH(bool, debut);
    DComboBoxAvecDLabelElision combo;
    combo.addItem(kRiche + kTresLong);
    QImage const image =
        DessineItem(combo, 0, QStyle::State_Enabled | QStyle::State_Active, elision);
    QCOMPARE(Encre::BornesDe(image, kVert).isValid(), debut);
    QRect const encre = Encre::BornesEncre(image);
    QVERIFY(encre.right() < kLigne.right());
    QVERIFY(encre.right() > kLigne.right() - 2 * combo.fontMetrics().maxWidth());
}

void tst_DComboBoxAvecDLabelElisionItems::itemAvecIcone()
{
    StyleTemoin style;
    DComboBoxAvecDLabelElision combo;
    combo.view()->setStyle(&style);
    combo.addItem(Icone(), kRiche);
    QImage const image = DessineItem(combo, 0, QStyle::State_Enabled | QStyle::State_Active);
    QRect const icone = Encre::BornesDe(image, Qt::cyan);
    QVERIFY(icone.isValid());
    QVERIFY(Encre::BornesDe(image, kVert).left() > icone.right());
}

void tst_DComboBoxAvecDLabelElisionItems::itemAvecCoche_data()
{
    QTest::addColumn<bool>("proxy");
    QTest::newRow("Fusion") << false;
    QTest::newRow("the style proxy") << true;
}

void tst_DComboBoxAvecDLabelElisionItems::itemAvecCoche()
{
    QFETCH(bool, proxy);
    std::unique_ptr<QStyle> style(QStyleFactory::create(u"Fusion"_s));
    if (proxy)
        style = std::make_unique<DStyleProxy>(style.release());
    DComboBoxAvecDLabelElision combo(nullptr);
    combo.addItem(u" "_s);
    combo.setItemData(0, Qt::Checked, Qt::CheckStateRole);
    combo.view()->setStyle(style.get());
    QImage const coche = DessineItem(combo, 0, QStyle::State_Enabled);
    combo.setItemText(0, kPleins);
    QImage const avecTexte = DessineItem(combo, 0, QStyle::State_Enabled);
    combo.view()->setStyle(nullptr);

    // The text begins behind the check, which stays where it was.
    int finCoche = -1;
    int debutTexte = kLigne.width();
    for (int y = 0; y < kLigne.height(); ++y) {
        for (int x = 0; x < kLigne.width(); ++x) {
            if (coche.pixelColor(x, y) != Qt::white)
                finCoche = std::max(finCoche, x);
            if (coche.pixel(x, y) != avecTexte.pixel(x, y))
                debutTexte = std::min(debutTexte, x);
        }
    }
    QVERIFY(finCoche >= 0);
    QVERIFY(debutTexte < kLigne.width());
    QVERIFY(finCoche < debutTexte);
}

void tst_DComboBoxAvecDLabelElisionItems::separateur()
{
    StyleTemoin style;
    DComboBoxAvecDLabelElision combo;
    combo.setStyle(&style);
    combo.view()->setStyle(&style);
    combo.addItem(u"un"_s);
    combo.insertSeparator(1);
    DessineItem(combo, 1, QStyle::State_None);
    QCOMPARE(style.mesSeparateurs.size(), 1);
    QVERIFY(style.mesItems.isEmpty());
}

void tst_DComboBoxAvecDLabelElisionItems::hauteurDesItems()
{
    DComboBoxAvecDLabelElision combo;
    combo.addItems({u"W et gras"_s, u"<b>W</b> et <i>gras</i>"_s});
    combo.insertSeparator(2);
    combo.addItem(u"fixe"_s);
    combo.setItemData(3, QSize(70, 80), Qt::SizeHintRole);
    QStyleOptionViewItem option;
    option.initFrom(combo.view());
    option.widget = combo.view();
    option.font = combo.font();
    auto const taille = [&](int ligne) {
        return combo.itemDelegate()->sizeHint(option, combo.model()->index(ligne, 0));
    };
    QCOMPARE(taille(1), taille(0)); // the mark-up takes no room
    QVERIFY(taille(0).height() >= combo.fontMetrics().height());
    QVERIFY(taille(2).height() < taille(0).height());
    QCOMPARE(taille(3), QSize(70, 80));
}

QTEST_MAIN(tst_DComboBoxAvecDLabelElisionItems)
#include "tst_DComboBoxAvecDLabelElisionItems.moc"
