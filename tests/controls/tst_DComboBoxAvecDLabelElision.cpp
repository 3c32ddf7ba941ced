// tests/controls/tst_DComboBoxAvecDLabelElision.cpp
#include "controls/DComboBoxAvecDLabelElision.h"
#include "controls/DLabelElision.h"

#include "controls/Encre.h"
#include "controls/EssaisComboElision.h"
#include "controls/StyleTemoin.h"

#include <QtTest>

#include <algorithm>

using namespace EssaisComboElision;
using namespace Qt::StringLiterals;

namespace {

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
    void taillesSansLesTextes();
    void taillesSelonReglages();
    void tailleSelonPremieresIcones();
    void comboFermay();
    void texteCourantRiche();
    void policeDeFeuille();
    void texteCourantTropLong_data();
    void texteCourantTropLong();
    void iconeGardee();
    void texteIndicatif();
    void editable();
    void comboInactif();
    void labelsInvisibles();
    void unSeulDeleguay();
    void secondDeleguay();
    void secondeVue();
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

void tst_DComboBoxAvecDLabelElision::tailleSelonPremieresIcones()
{
    constexpr int kExaminay = 100;
    DComboBoxAvecDLabelElision combo;
    for (int i = 0; i <= kExaminay; ++i)
        combo.addItem(QString::number(i));
    int const sansIcone = combo.sizeHint().width();
    // Deliberate: the items behind the first hundred are not looked at.
    combo.setItemIcon(kExaminay, Icone());
    QCOMPARE(combo.sizeHint().width(), sansIcone);
    combo.setItemIcon(kExaminay - 1, Icone());
    QVERIFY(combo.sizeHint().width() > sansIcone);
    combo.setItemIcon(kExaminay - 1, QIcon());
    QCOMPARE(combo.sizeHint().width(), sansIcone);
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

void tst_DComboBoxAvecDLabelElision::policeDeFeuille()
{
    DComboBoxAvecDLabelElision combo;
    combo.addItem(kRiche);
    combo.resize(400, 100);
    auto const hauteur = [&combo] {
        return Encre::BornesDe(combo.grab().toImage(), kVert).height();
    };
    int const ordinaire = hauteur();
    QVERIFY(ordinaire > 0);
    combo.setStyleSheet(u"QComboBox { font-size: 60px }"_s);
    QVERIFY(hauteur() > ordinaire + 20);
    combo.setStyleSheet({});
    QCOMPARE(hauteur(), ordinaire);
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

void tst_DComboBoxAvecDLabelElision::unSeulDeleguay()
{
    DComboBoxAvecDLabelElision const combo;
    auto const deleguays = combo.findChildren<QAbstractItemDelegate *>();
    QCOMPARE(std::count_if(deleguays.begin(), deleguays.end(),
                           [](auto const * d) { return d->inherits("DComboBoxDeleguay"); }),
             1);
}

void tst_DComboBoxAvecDLabelElision::secondDeleguay()
{
    DComboBoxAvecDLabelElision combo;
    combo.addItem(kRiche);
    combo.resize(combo.sizeHint());
    QPointer<QAbstractItemDelegate> const premier = combo.itemDelegate();
    QCOMPARE(combo.findChildren<DLabelElision *>().size(), 2);

    combo.setItemDelegate(new QStyledItemDelegate(&combo));
    QVERIFY(premier); // another view may use it
    delete premier;
    QCOMPARE(combo.findChildren<DLabelElision *>().size(), 1);
    QVERIFY(Encre::BornesDe(combo.grab().toImage(), kVert).isValid());
    combo.show();
    combo.showPopup();
    QTRY_VERIFY(combo.view()->isVisible());
    combo.hidePopup();
}

void tst_DComboBoxAvecDLabelElision::secondeVue()
{
    DComboBoxAvecDLabelElision combo;
    combo.addItem(kRiche);
    combo.setView(new QListView);
    combo.show();
    combo.showPopup();
    QTRY_VERIFY(Encre::BornesDe(combo.view()->grab().toImage(), kVert).isValid());
    combo.hidePopup();
}

QTEST_MAIN(tst_DComboBoxAvecDLabelElision)
#include "tst_DComboBoxAvecDLabelElision.moc"
