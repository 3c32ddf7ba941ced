// tests/controls/tst_DComboBoxAvecDLabelElision.cpp
#include "controls/DComboBoxAvecDLabelElision.h"

#include "controls/Encre.h"
#include "controls/StyleTemoin.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

// Letters of which whole pixels have the colour of the pen, and single words for them.
QString const kPleins = u"▇▇▇▇"_s;
QString const kRiche = u"<span style='background-color:#00ff00'>W</span> et <b>gras</b>"_s;
constexpr QColor kVert(0, 255, 0);
QString const kTresLong = u"un texte bien trop long "_s.repeated(40);

constexpr QRect kLigne(0, 0, 200, 30);

QPalette FabriquePalette()
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(0, 0, 160));
    palette.setColor(QPalette::HighlightedText, Qt::yellow);
    palette.setColor(QPalette::Text, QColor(200, 0, 0));
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0, 120, 0));
    palette.setColor(QPalette::PlaceholderText, QColor(200, 0, 200));
    return palette;
}

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

QIcon Icone()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::cyan);
    return QIcon(pixmap);
}

QRect ChampTexte(QComboBox const & combo)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.subControls = QStyle::SC_All;
    return combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField,
                                         &combo);
}

} // namespace

class tst_DComboBoxAvecDLabelElision : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void couleurDesItems_data();
    void couleurDesItems();
    void texteHorsDuStyle();
    void itemRiche();
    void itemDroiteAGauche();
    void itemTropLong_data();
    void itemTropLong();
    void itemAvecIcone();
    void separateur();
    void hauteurDesItems();
    void taillesSansLesTextes();
    void taillesSelonReglages();
    void comboFermay();
    void texteCourantRiche();
    void texteCourantTropLong_data();
    void texteCourantTropLong();
    void iconeGardee();
    void texteIndicatif();
    void editable();
    void comboInactif();
    void labelsInvisibles();
};

void tst_DComboBoxAvecDLabelElision::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboBoxAvecDLabelElision::construction()
{
    QWidget parent;
    DComboBoxAvecDLabelElision const combo(&parent);
    QCOMPARE(combo.parentWidget(), &parent);
    QCOMPARE(combo.property("DStyleProxyTexteRiche"), QVariant(true));
    QVERIFY(qobject_cast<DComboBox const *>(&combo));
}

void tst_DComboBoxAvecDLabelElision::couleurDesItems_data()
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

void tst_DComboBoxAvecDLabelElision::couleurDesItems()
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

void tst_DComboBoxAvecDLabelElision::texteHorsDuStyle()
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

void tst_DComboBoxAvecDLabelElision::itemRiche()
{
    DComboBoxAvecDLabelElision combo;
    combo.addItem(kRiche);
    QImage const image = DessineItem(combo, 0, QStyle::State_Enabled | QStyle::State_Active);
    QRect const vert = Encre::BornesDe(image, kVert);
    QVERIFY(vert.isValid());
    QVERIFY(qAbs(vert.center().y() - kLigne.center().y()) <= 2);
}

void tst_DComboBoxAvecDLabelElision::itemDroiteAGauche()
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

void tst_DComboBoxAvecDLabelElision::itemTropLong_data()
{
    QTest::addColumn<Qt::TextElideMode>("elision");
    QTest::addColumn<bool>("debut");
    QTest::newRow("right") << Qt::ElideRight << true;
    QTest::newRow("middle, as right") << Qt::ElideMiddle << true;
    QTest::newRow("none") << Qt::ElideNone << true;
    QTest::newRow("left") << Qt::ElideLeft << false;
}

void tst_DComboBoxAvecDLabelElision::itemTropLong()
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

void tst_DComboBoxAvecDLabelElision::itemAvecIcone()
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

void tst_DComboBoxAvecDLabelElision::separateur()
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

void tst_DComboBoxAvecDLabelElision::hauteurDesItems()
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

void tst_DComboBoxAvecDLabelElision::taillesSansLesTextes()
{
    DComboBoxAvecDLabelElision combo;
    combo.setSizeAdjustPolicy(QComboBox::AdjustToContents);
    QSize const conseillee = combo.sizeHint();
    QSize const minimale = combo.minimumSizeHint();
    QVERIFY(minimale.width() > 0);
    QVERIFY(minimale.width() < conseillee.width());
    QVERIFY(minimale.height() >= combo.fontMetrics().height());

    combo.addItems({kTresLong, u"<b>%1</b>"_s.arg(kTresLong)});
    combo.setPlaceholderText(kTresLong);
    QCOMPARE(combo.sizeHint(), conseillee);
    QCOMPARE(combo.minimumSizeHint(), minimale);
}

void tst_DComboBoxAvecDLabelElision::taillesSelonReglages()
{
    DComboBoxAvecDLabelElision combo;
    QSize const conseillee = combo.sizeHint();
    QSize const minimale = combo.minimumSizeHint();
    combo.setMinimumContentsLength(7);
    QCOMPARE(combo.minimumSizeHint(), minimale);
    combo.setMinimumContentsLength(10);
    QVERIFY(combo.minimumSizeHint().width() > minimale.width());
    QCOMPARE(combo.sizeHint(), conseillee);
    combo.setMinimumContentsLength(21);
    QVERIFY(combo.sizeHint().width() > conseillee.width());
    QCOMPARE(combo.minimumSizeHint(), combo.sizeHint());

    int const sansIcone = combo.sizeHint().width();
    combo.addItem(u"sans"_s);
    combo.addItem(Icone(), u"avec"_s);
    combo.setIconSize(QSize(50, 60));
    QVERIFY(combo.sizeHint().width() >= sansIcone + 50);
    QVERIFY(combo.sizeHint().height() >= 60);
}

void tst_DComboBoxAvecDLabelElision::comboFermay()
{
    StyleTemoin style;
    DComboBoxAvecDLabelElision combo;
    combo.setStyle(&style);
    combo.setPalette(FabriquePalette());
    combo.addItem(kPleins);
    combo.resize(combo.sizeHint());

    QImage const image = combo.grab().toImage();

    QCOMPARE(style.mesCombos, 1);
    QCOMPARE(style.mesTextesDeCombo, QList<QString>{QString()});
    QRect const texte = Encre::BornesDe(image, FabriquePalette().color(QPalette::Text));
    QVERIFY(texte.isValid());
    QVERIFY(ChampTexte(combo).contains(texte));
}

void tst_DComboBoxAvecDLabelElision::texteCourantRiche()
{
    DComboBoxAvecDLabelElision combo;
    combo.addItems({kRiche, u"autre"_s});
    combo.resize(combo.sizeHint());
    QRect const vert = Encre::BornesDe(combo.grab().toImage(), kVert);
    QVERIFY(vert.isValid());
    QVERIFY(qAbs(vert.center().y() - combo.rect().center().y()) <= 2);

    combo.setCurrentIndex(1);
    QVERIFY(!Encre::BornesDe(combo.grab().toImage(), kVert).isValid());
}

void tst_DComboBoxAvecDLabelElision::texteCourantTropLong_data()
{
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_DComboBoxAvecDLabelElision::texteCourantTropLong()
{
    QFETCH(Qt::LayoutDirection, sens);
    DComboBoxAvecDLabelElision combo;
    combo.setLayoutDirection(sens);
    combo.setPalette(FabriquePalette());
    combo.addItem(kPleins.repeated(100));
    combo.resize(combo.sizeHint());

    QRect const texte =
        Encre::BornesDe(combo.grab().toImage(), FabriquePalette().color(QPalette::Text));

    QRect const champ = ChampTexte(combo);
    QVERIFY(champ.contains(texte));
    QVERIFY(texte.width() > champ.width() / 2);
    // The ellipsis, whose dots are too small for whole pixels, takes the rest.
    QVERIFY(champ.right() - texte.right() >= combo.fontMetrics().horizontalAdvance(u'.'));
}

void tst_DComboBoxAvecDLabelElision::iconeGardee()
{
    for (auto const sens : {Qt::LeftToRight, Qt::RightToLeft}) {
        DComboBoxAvecDLabelElision combo;
        combo.setLayoutDirection(sens);
        combo.addItem(Icone(), kRiche);
        combo.resize(combo.sizeHint());
        QImage const image = combo.grab().toImage();
        QRect const icone = Encre::BornesDe(image, Qt::cyan);
        QRect const texte = Encre::BornesDe(image, kVert);
        QVERIFY(icone.isValid());
        QVERIFY(texte.isValid());
        QCOMPARE(texte.left() > icone.right(), sens == Qt::LeftToRight);
        QCOMPARE(texte.right() < icone.left(), sens == Qt::RightToLeft);
    }
}

void tst_DComboBoxAvecDLabelElision::texteIndicatif()
{
    DComboBoxAvecDLabelElision combo;
    combo.setPalette(FabriquePalette());
    combo.setPlaceholderText(kPleins);
    combo.resize(combo.sizeHint());
    QColor const indicatif = FabriquePalette().color(QPalette::PlaceholderText);
    QVERIFY(Encre::BornesDe(combo.grab().toImage(), indicatif).isValid());

    combo.addItem(kPleins);
    combo.setCurrentIndex(0);
    QVERIFY(!Encre::BornesDe(combo.grab().toImage(), indicatif).isValid());
}

void tst_DComboBoxAvecDLabelElision::editable()
{
    DComboBoxAvecDLabelElision combo;
    combo.addItem(kRiche);
    combo.setEditable(true);
    combo.resize(combo.sizeHint());
    QCOMPARE(combo.lineEdit()->text(), kRiche);
    combo.lineEdit()->hide(); // which would hide what is drawn under it
    QVERIFY(!Encre::BornesDe(combo.grab().toImage(), kVert).isValid());
}

void tst_DComboBoxAvecDLabelElision::comboInactif()
{
    DComboBoxAvecDLabelElision combo;
    combo.setPalette(FabriquePalette());
    combo.addItem(kPleins);
    combo.setEnabled(false);
    combo.resize(combo.sizeHint());
    QColor const grise = FabriquePalette().color(QPalette::Disabled, QPalette::Text);
    QVERIFY(Encre::BornesDe(combo.grab().toImage(), grise).isValid());
}

void tst_DComboBoxAvecDLabelElision::labelsInvisibles()
{
    DComboBoxAvecDLabelElision combo;
    combo.addItem(kRiche);
    combo.show();
    QVERIFY(QTest::qWaitForWindowExposed(&combo));
    for (QWidget const * const enfant : combo.findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        QVERIFY(!enfant->isVisible());
    QTest::mouseClick(&combo, Qt::LeftButton, {}, QPoint(5, 5));
    QTRY_VERIFY(combo.view()->isVisible());
    combo.hidePopup();
}

QTEST_MAIN(tst_DComboBoxAvecDLabelElision)
#include "tst_DComboBoxAvecDLabelElision.moc"
