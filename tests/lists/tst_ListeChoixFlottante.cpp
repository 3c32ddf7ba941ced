#include "lists/ListeChoixFlottante.h"

#include "lists/EssaisListeChoix.h"

#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QWindow>
#include <QtTest>

#include <array>

using namespace EssaisListeChoix;
using namespace Qt::StringLiterals;

// The window and its view as they are made, and what a host sets on them.

class tst_ListeChoixFlottante : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void fenetre();
    void fenetreNative();
    void vue();
    void constructeurs();
    void toutNul();
    void appartenance();
    void largeurMinimum();
    void largeurMinimumDuHote();
    void hauteurFixe();
    void hauteurFixeFaitDefiler();
    void delegue();
    void lien();
    void actualisation();
    void palette_data();
    void palette();
};

namespace {

// A host whose least width is not a constant.
class ListeLarge : public ListeChoixFlottante
{
public:
    using ListeChoixFlottante::ListeChoixFlottante;
    void MetsLargeurMinimum(int largeur) override
    {
        ListeChoixFlottante::MetsLargeurMinimum(2 * largeur);
    }
    int DonneLargeurMinimum() override { return ListeChoixFlottante::DonneLargeurMinimum() + 1; }
};

class DelegueHaut : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(QStyleOptionViewItem const &, QModelIndex const &) const override
    {
        return {70, 50};
    }
};

// What the native window of a widget is when it appears.
class AParution : public QObject
{
public:
    bool sansFocus = false;

protected:
    bool eventFilter(QObject * objet, QEvent * evenement) override
    {
        if (evenement->type() == QEvent::Show) {
            QWindow const * const native = static_cast<QWidget *>(objet)->windowHandle();
            sansFocus = native && native->flags().testFlag(Qt::WindowDoesNotAcceptFocus);
        }
        return false;
    }
};

} // namespace

void tst_ListeChoixFlottante::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ListeChoixFlottante::fenetre()
{
    Hote const hote;
    QVERIFY(!hote.liste->parent());
    QCOMPARE(hote.liste->windowFlags(),
             Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    QVERIFY(hote.liste->testAttribute(Qt::WA_ShowWithoutActivating));
    QCOMPARE(hote.liste->objectName(), u"ListeChoix"_s);
    QCOMPARE(hote.liste->styleSheet(), u"QFrame{background-color: white;}"_s);
    QVERIFY(hote.liste->isHidden());
    auto const * const disposition = qobject_cast<QVBoxLayout *>(hote.liste->layout());
    QVERIFY(disposition);
    QCOMPARE(disposition->contentsMargins(), QMargins());
    QCOMPARE(disposition->count(), 1);
    QCOMPARE(disposition->itemAt(0)->widget(), hote.Vue());
}

void tst_ListeChoixFlottante::fenetreNative()
{
    Hote hote;
    AParution parution;
    hote.liste->installEventFilter(&parution);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(1)));
    QVERIFY(parution.sansFocus); // too late once the system has the window
    QWindow const * const native = hote.liste->windowHandle();
    QVERIFY(native->flags().testFlag(Qt::WindowDoesNotAcceptFocus));
    QCOMPARE(native->transientParent(), hote.fenetre.windowHandle());
    // It follows the link, at the next proposals.
    QWidget autre;
    autre.show();
    hote.liste->MetsWidgetLiay(&autre);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(1)));
    QCOMPARE(native->transientParent(), autre.windowHandle());
    hote.liste->MetsWidgetLiay(nullptr);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(1)));
    QVERIFY(!native->transientParent());
}

void tst_ListeChoixFlottante::vue()
{
    Hote const hote;
    QTreeView const * const vue = hote.Vue();
    QCOMPARE(vue->parent(), hote.liste.data());
    QCOMPARE(vue->styleSheet(), u"QTreeView{padding: 2px;}"_s);
    QVERIFY(vue->hasMouseTracking());
    QCOMPARE(vue->focusPolicy(), Qt::NoFocus);
    QCOMPARE(vue->editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(vue->selectionMode(), QAbstractItemView::SingleSelection);
    QVERIFY(!vue->rootIsDecorated());
    QVERIFY(vue->isHeaderHidden());
    QCOMPARE(vue->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(vue->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    auto const * const modele = qobject_cast<QStandardItemModel *>(vue->model());
    QVERIFY(modele);
    QCOMPARE(modele->parent(), hote.liste.data());
    QCOMPARE(modele->rowCount(), 0);
    QCOMPARE(modele->columnCount(), 1);
}

void tst_ListeChoixFlottante::constructeurs()
{
    QWidget lie;
    QWidget reference;
    lie.resize(400, 30);
    reference.resize(12, 30);
    ListeChoixFlottante seul(nullptr, false, &lie);
    ListeChoixFlottante deux(nullptr, false, &lie, &reference);
    QString const texte(20, u'm');
    seul.ActualiseListeChoix(CreeRangees({texte}));
    deux.ActualiseListeChoix(CreeRangees({texte}));
    QVERIFY(seul.width() > 12);
    QCOMPARE(deux.width(), 12);
}

void tst_ListeChoixFlottante::toutNul()
{
    ListeChoixFlottante liste(nullptr, true, nullptr);
    QVERIFY(!liste.PossedeWidgetLiay());
    liste.ActualiseListeChoix(CreeRangees({u"un"_s}));
    QVERIFY(liste.isHidden());
    QCOMPARE(liste.PreteListeChoix()->model()->rowCount(), 0);
    liste.ActualiseListeChoix({});
    liste.ActualisePosListeChoix();
    liste.MetsWidgetLiay(nullptr);
    liste.MetsDelegue(nullptr);
    liste.MetsItemSelectionnableParDefaut(nullptr, false);
    liste.EnleveSelection();
    liste.PriseEnFermeture();
    liste.SelectionneItemActivay();
    QVERIFY(!liste.SelectionneItem({}, Qt::DisplayRole));
    QVERIFY(liste.DonneItemsSelectionnay().isEmpty());
    liste.AfficheToi();
    QVERIFY(liste.isVisible());
    liste.CacheToi();
    QVERIFY(liste.isHidden());
}

void tst_ListeChoixFlottante::appartenance()
{
    Hote const hote;
    QVERIFY(hote.liste->CeQObjectMAppartient(hote.liste));
    QVERIFY(hote.liste->CeQObjectMAppartient(hote.Vue()));
    QVERIFY(!hote.liste->CeQObjectMAppartient(hote.Vue()->viewport()));
    QVERIFY(!hote.liste->CeQObjectMAppartient(hote.champ));
    QVERIFY(!hote.liste->CeQObjectMAppartient(nullptr));
}

void tst_ListeChoixFlottante::largeurMinimum()
{
    Hote const hote;
    QCOMPARE(hote.liste->DonneLargeurMinimum(), 0);
    hote.liste->MetsLargeurMinimum(200);
    QCOMPARE(hote.liste->DonneLargeurMinimum(), 200);
    hote.liste->ActualiseListeChoix(CreeRangees({u"a"_s}));
    QCOMPARE(hote.liste->width(), 200);
    QCOMPARE(hote.Vue()->width(), 200);
    // The wish of the host goes beyond the reference.
    hote.liste->MetsLargeurMinimum(500);
    QCOMPARE(hote.liste->width(), 200);
    hote.liste->ActualiseListeChoix(CreeRangees({u"a"_s}));
    QVERIFY(hote.champ->width() < 500);
    QCOMPARE(hote.liste->width(), 500);
}

void tst_ListeChoixFlottante::largeurMinimumDuHote()
{
    QWidget lie;
    lie.resize(100, 20);
    ListeLarge liste(nullptr, false, &lie);
    liste.MetsLargeurMinimum(150);
    liste.ActualiseListeChoix(CreeRangees({u"a"_s}));
    QCOMPARE(liste.width(), 301);
}

void tst_ListeChoixFlottante::hauteurFixe()
{
    Hote const hote;
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(10)));
    int const naturelle = hote.liste->height();
    for (int const hauteur : {60, naturelle + 100}) {
        hote.liste->MetsHauteurListeFixe(hauteur);
        QCOMPARE(hote.liste->height(), hauteur);
        QCOMPARE(hote.liste->minimumHeight(), hauteur);
        QCOMPARE(hote.liste->maximumHeight(), hauteur);
        QCOMPARE(hote.Vue()->height(), hauteur);
        // The next proposals size the list to themselves again.
        hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(10)));
        QCOMPARE(hote.liste->height(), naturelle);
        QCOMPARE(hote.Vue()->height(), naturelle);
    }
}

void tst_ListeChoixFlottante::hauteurFixeFaitDefiler()
{
    Hote const hote;
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(50)));
    hote.liste->MetsHauteurListeFixe(100);
    QRect const avant = hote.Vue()->visualRect(hote.Vue()->model()->index(49, 0));
    QVERIFY(avant.top() > 100);
    for (int i = 0; i < 50; ++i)
        QTest::keyClick(hote.champ, Qt::Key_Down);
    QCOMPARE(hote.Rangee(), 49);
    QRect const apres = hote.Vue()->visualRect(hote.Vue()->currentIndex());
    QVERIFY(hote.Vue()->viewport()->rect().contains(apres));
}

void tst_ListeChoixFlottante::delegue()
{
    Hote const hote;
    DelegueHaut delegue;
    hote.liste->MetsDelegue(&delegue);
    QCOMPARE(hote.Vue()->itemDelegate(), &delegue);
    hote.liste->MetsDelegue(nullptr);
    QCOMPARE(hote.Vue()->itemDelegate(), &delegue);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QCOMPARE(hote.liste->size(), QSize(70, 6 + 3 * 50));
    QVERIFY(!delegue.parent());
}

void tst_ListeChoixFlottante::lien()
{
    Hote hote;
    QVERIFY(hote.liste->PossedeWidgetLiay());
    hote.liste->MetsWidgetLiay(nullptr);
    QVERIFY(!hote.liste->PossedeWidgetLiay());
    hote.liste->MetsWidgetLiay(&hote.fenetre);
    QVERIFY(hote.liste->PossedeWidgetLiay());
}

void tst_ListeChoixFlottante::actualisation()
{
    Hote const hote;
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    hote.liste->DebuteActualisation();
    QCOMPARE(hote.Vue()->model()->rowCount(), 0);
    QVERIFY(!hote.Vue()->updatesEnabled());
    QVERIFY(hote.liste->updatesEnabled());
    QVERIFY(hote.liste->isVisible());
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    QVERIFY(!hote.Vue()->updatesEnabled());
    hote.liste->TermineActualisation();
    QVERIFY(hote.Vue()->updatesEnabled());
    QCOMPARE(hote.Vue()->model()->rowCount(), 2);
}

void tst_ListeChoixFlottante::palette_data()
{
    QTest::addColumn<QColor>("fond");
    QTest::newRow("light theme") << QColor(240, 240, 240);
    QTest::newRow("dark theme") << QColor(40, 40, 40);
}

void tst_ListeChoixFlottante::palette()
{
    QFETCH(QColor, fond);
    QPalette const avant = QApplication::palette();
    auto const remets = qScopeGuard([&] { QApplication::setPalette(avant); });
    QPalette theme(fond);
    theme.setColor(QPalette::Text, theme.color(QPalette::WindowText));
    QApplication::setPalette(theme);
    Hote const hote(true);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QTRY_VERIFY(hote.liste->isVisible());
    for (auto const groupe : {QPalette::Active, QPalette::Inactive}) {
        QCOMPARE(hote.Vue()->palette().color(groupe, QPalette::Text), QColor(Qt::black));
        QCOMPARE(hote.Vue()->viewport()->palette().color(groupe, QPalette::Base),
                 QColor(Qt::white));
    }
    QCOMPARE(hote.Vue()->palette().color(QPalette::Disabled, QPalette::Text), QColor(Qt::gray));
    QImage const image = hote.liste->grab().toImage();
    QCOMPARE(image.pixelColor(image.width() / 2, image.height() - 3), QColor(Qt::white));
    // A theme that changes while the list is shown.
    QApplication::setPalette(QPalette(QColor(90, 20, 20)));
    QCoreApplication::processEvents();
    QCOMPARE(hote.Vue()->palette().color(QPalette::Text), QColor(Qt::black));
}

QTEST_MAIN(tst_ListeChoixFlottante)
#include "tst_ListeChoixFlottante.moc"
