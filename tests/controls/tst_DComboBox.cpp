// tests/controls/tst_DComboBox.cpp
#include "controls/DComboBox.h"

#include "controls/StyleTemoin.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

class ComboEspion : public DComboBox
{
public:
    QList<QEvent::Type> mesEvenements;

protected:
    bool eventFilter(QObject * objet, QEvent * evenement) override
    {
        if (objet == view())
            mesEvenements << evenement->type();
        return DComboBox::eventFilter(objet, evenement);
    }
};

// The class of the delegate is not exported.
bool EstDeleguayDeCombo(QAbstractItemDelegate const * deleguay)
{
    return deleguay && deleguay->inherits("DComboBoxDeleguay");
}

} // namespace

class tst_DComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void separateurSurToutLaListe();
    void separateurSansVue();
    void descriptionExacte_data();
    void descriptionExacte();
    void hauteurDesSeparateurs();
    void separateurDansLaListeOuverte();
    void evenementsDeLaVueFiltres();
    void vueRemplacay();
    void vueRemplaceeParLaBase();
    void vueIgnoray();
    void deleguayDeLaVueRemplacay();
    void comboOrdinaire();
};

void tst_DComboBox::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboBox::construction()
{
    QWidget parent;
    DComboBox const combo(&parent);
    QCOMPARE(combo.parentWidget(), &parent);
    QVERIFY(EstDeleguayDeCombo(combo.itemDelegate()));
    QCOMPARE(combo.view()->itemDelegate(), combo.itemDelegate());
    QCOMPARE(combo.count(), 0);
}

void tst_DComboBox::separateurSurToutLaListe()
{
    StyleTemoin style;
    DComboBox combo;
    combo.setStyle(&style);
    combo.view()->setStyle(&style);
    combo.addItem(u"un"_s);
    combo.insertSeparator(1);
    combo.view()->resize(300, 100);
    QStyleOptionViewItem option;
    option.widget = combo.view();
    option.rect = QRect(30, 20, 10, 6); // narrower than the list, and not at its edge
    QImage image(300, 100, QImage::Format_RGB32);
    QPainter peintre(&image);

    combo.itemDelegate()->paint(&peintre, option, combo.model()->index(1, 0));

    int const largeur = combo.view()->viewport()->width();
    QVERIFY(largeur > 200);
    QCOMPARE(style.mesSeparateurs, QList<QRect>{QRect(0, 20, largeur, 6)});
    QVERIFY(style.mesItems.isEmpty());
}

void tst_DComboBox::separateurSansVue()
{
    StyleTemoin style;
    DComboBox combo;
    combo.setStyle(&style);
    combo.view()->setStyle(&style);
    combo.addItem(u"un"_s);
    combo.insertSeparator(1);
    combo.view()->resize(300, 100);
    QStyleOptionViewItem option;
    option.rect = QRect(30, 20, 10, 6);
    QImage image(50, 50, QImage::Format_RGB32);
    QPainter peintre(&image);

    int const largeur = combo.view()->viewport()->width();
    QVERIFY(largeur > 200);
    for (QWidget const * const widget : {static_cast<QWidget *>(nullptr), combo.view()->viewport(),
                                         static_cast<QWidget *>(&combo)}) {
        style.mesSeparateurs.clear();
        option.widget = widget;
        combo.itemDelegate()->paint(&peintre, option, combo.model()->index(1, 0));
        QCOMPARE(style.mesSeparateurs, QList<QRect>{QRect(0, 20, largeur, 6)});
    }
}

void tst_DComboBox::descriptionExacte_data()
{
    QTest::addColumn<QVariant>("description");
    QTest::addColumn<int>("separateurs");
    QTest::newRow("none") << QVariant() << 0;
    QTest::newRow("separator") << QVariant(u"separator"_s) << 1;
    QTest::newRow("another case") << QVariant(u"Separator"_s) << 0;
    QTest::newRow("more text") << QVariant(u"separator 1"_s) << 0;
}

void tst_DComboBox::descriptionExacte()
{
    QFETCH(QVariant, description);
    QFETCH(int, separateurs);
    StyleTemoin style;
    DComboBox combo;
    combo.setStyle(&style);
    combo.view()->setStyle(&style);
    combo.addItem(u"un"_s);
    combo.setItemData(0, description, Qt::AccessibleDescriptionRole);
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 50, 20);
    option.widget = combo.view();
    QImage image(50, 20, QImage::Format_RGB32);
    QPainter peintre(&image);

    combo.itemDelegate()->paint(&peintre, option, combo.model()->index(0, 0));

    QCOMPARE(style.mesSeparateurs.size(), separateurs);
    QCOMPARE(style.mesItems.size(), 1 - separateurs);
    if (separateurs == 0)
        QCOMPARE(style.mesItems.at(0).texte, u"un"_s);
}

void tst_DComboBox::hauteurDesSeparateurs()
{
    DComboBox combo;
    combo.addItem(u"un"_s);
    combo.insertSeparator(1);
    QStyleOptionViewItem option;
    option.widget = combo.view();
    auto const hauteur = [&](int ligne) {
        return combo.itemDelegate()->sizeHint(option, combo.model()->index(ligne, 0)).height();
    };
    QVERIFY(hauteur(1) > 0);
    QVERIFY(hauteur(1) < hauteur(0));
}

void tst_DComboBox::separateurDansLaListeOuverte()
{
    StyleTemoin style;
    DComboBox combo;
    combo.setStyle(&style);
    combo.view()->setStyle(&style);
    combo.addItems({u"un"_s, u"deux"_s});
    combo.insertSeparator(1);
    combo.show();
    combo.showPopup();

    QTRY_VERIFY(!style.mesSeparateurs.isEmpty());
    QCOMPARE(style.mesSeparateurs.last().left(), 0);
    QCOMPARE(style.mesSeparateurs.last().width(), combo.view()->viewport()->width());
    combo.hidePopup();
}

void tst_DComboBox::evenementsDeLaVueFiltres()
{
    ComboEspion combo;
    combo.mesEvenements.clear();
    QEvent evenement(QEvent::User);

    QCoreApplication::sendEvent(combo.view(), &evenement);

    QCOMPARE(combo.mesEvenements, QList<QEvent::Type>{QEvent::User});
}

void tst_DComboBox::vueRemplacay()
{
    StyleTemoin style;
    ComboEspion combo;
    combo.setStyle(&style);
    combo.addItems({u"un"_s, u"deux"_s});
    combo.insertSeparator(1);
    QPointer<QAbstractItemView> const ancienne = combo.view();
    QPointer<QAbstractItemDelegate> const deleguay = combo.itemDelegate();
    auto * const vue = new QListView;

    combo.setView(vue);

    QVERIFY(!ancienne);
    QCOMPARE(combo.view(), vue);
    QCOMPARE(vue->model(), combo.model());
    QVERIFY(EstDeleguayDeCombo(deleguay));
    QCOMPARE(vue->itemDelegate(), deleguay.data());
    combo.mesEvenements.clear();
    QEvent evenement(QEvent::User);
    QCoreApplication::sendEvent(vue, &evenement);
    QCOMPARE(combo.mesEvenements, QList<QEvent::Type>{QEvent::User});

    combo.show();
    combo.showPopup();
    QTRY_VERIFY(!style.mesSeparateurs.isEmpty());
    combo.hidePopup();
}

void tst_DComboBox::vueRemplaceeParLaBase()
{
    ComboEspion combo;
    auto * const vue = new QListView;
    // Deliberate: the function hides that of the base and cannot override it.
    static_cast<QComboBox &>(combo).setView(vue);
    QCOMPARE(combo.view(), vue);
    QVERIFY(!EstDeleguayDeCombo(combo.itemDelegate()));
}

void tst_DComboBox::vueIgnoray()
{
    DComboBox combo;
    QPointer<QAbstractItemView> const vue = combo.view();
    combo.setView(nullptr);
    QCOMPARE(combo.view(), vue.data());
    combo.setView(combo.view());
    QVERIFY(vue);
    QCOMPARE(combo.view(), vue.data());
    QVERIFY(EstDeleguayDeCombo(combo.itemDelegate()));
}

void tst_DComboBox::deleguayDeLaVueRemplacay()
{
    DComboBox combo;
    combo.setItemDelegate(new QStyledItemDelegate(&combo));
    QAbstractItemDelegate * const deleguay = combo.itemDelegate();
    combo.setView(new QListView);
    QCOMPARE(combo.itemDelegate(), deleguay);

    // One that goes with its view leaves the new view what it has.
    combo.setItemDelegate(new QStyledItemDelegate(combo.view()));
    auto * const vue = new QListView;
    QAbstractItemDelegate * const deleguayDeLaVue = vue->itemDelegate();
    combo.setView(vue);
    QCOMPARE(combo.itemDelegate(), deleguayDeLaVue);
}

void tst_DComboBox::comboOrdinaire()
{
    DComboBox combo;
    combo.addItems({u"un"_s, u"deux"_s, u"trois"_s});
    QSignalSpy espion(&combo, &QComboBox::activated);
    QTest::keyClick(&combo, Qt::Key_Down);
    QCOMPARE(combo.currentIndex(), 1);
    QTest::keyClick(&combo, Qt::Key_T);
    QCOMPARE(combo.currentText(), u"trois"_s);
    QCOMPARE(espion.count(), 2);
}

QTEST_MAIN(tst_DComboBox)
#include "tst_DComboBox.moc"
