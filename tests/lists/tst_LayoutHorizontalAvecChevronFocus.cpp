#include "lists/LayoutHorizontalAvecChevron.h"

#include "lists/EssaisChevron.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

#include <functional>

using namespace EssaisChevron;
using namespace Qt::StringLiterals;

// What is under the chevron has not the keyboard focus, cannot get it, and is as it was when it is
// back in the row.

namespace {

// A row of three fields of 30 between two others, in an active window.
class RangeeFocus
{
public:
    RangeeFocus()
    {
        auto * const disposition = new QVBoxLayout(&fenetre);
        avant = new QLineEdit;
        disposition->addWidget(avant);
        auto * const bande = new QWidget;
        disposition->addWidget(bande);
        apres = new QLineEdit;
        disposition->addWidget(apres);

        chevron = new Pave(20, bande);
        chevron->setFocusPolicy(Qt::TabFocus);
        layout = new LayoutHorizontalAvecChevron(bande, chevron, 0);
        layout->setSpacing(0);
        for (Pave *& pave : paves) {
            pave = new Pave(30);
            pave->setFocusPolicy(Qt::StrongFocus);
            layout->addWidget(pave);
        }
        // Only the tests lay out the row.
        layout->setEnabled(false);
        fenetre.show();
        fenetre.activateWindow();
    }

    bool EstActive() { return QTest::qWaitForWindowActive(&fenetre); }
    void MontreTout() { layout->setGeometry({0, 0, 200, 10}); }
    void MontrePremier() { layout->setGeometry({0, 0, 60, 10}); }
    void CacheTout() { layout->setGeometry({0, 0, 25, 10}); }

    QWidget fenetre;
    QLineEdit * avant = nullptr;
    QLineEdit * apres = nullptr;
    Pave * chevron = nullptr;
    LayoutHorizontalAvecChevron * layout = nullptr;
    Pave * paves[3] = {};
};

using Action = std::function<void(RangeeFocus &)>;

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_LayoutHorizontalAvecChevronFocus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void focusAuChevron();
    void focusAuSuivant_data();
    void focusAuSuivant();
    void focusAuSuivantSansMandataire();
    void focusANulAutre();
    void focusGarday();
    void focusDuChevronCachay();
    void fenetreInactive();
    void enfantAuFocus();
    void setFocusSansEffet();
    void tab();
    void mnemonique();
    void clic();
    void politiqueRendue_data();
    void politiqueRendue();
    void politiqueDesEnfants();
    void politiqueDeLHote();
    void politiqueDeLHotePuisPasse();
    void enfantAjoutay();
    void enfantsAjoutesSansAutre();
    void tabEnArriereDepuisLeChevron();
    void rangeeDansUneRangee();
    void enfantParti();
    void mandataire();
    void chevronSansPlace();
    void sansChevron();
    void chevronDetruit();
    void widgetDetruit();
};

void tst_LayoutHorizontalAvecChevronFocus::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_LayoutHorizontalAvecChevronFocus::focusAuChevron()
{
    RangeeFocus rangee;
    QVERIFY(rangee.EstActive());
    rangee.MontreTout();
    rangee.paves[1]->setFocus();
    QVERIFY(rangee.paves[1]->hasFocus());

    rangee.MontrePremier();

    QVERIFY(rangee.chevron->hasFocus());
}

void tst_LayoutHorizontalAvecChevronFocus::focusAuSuivant_data()
{
    QTest::addColumn<Action>("action");
    auto const ajoute = [](char const * nom, Action const & action) {
        QTest::newRow(nom) << action;
    };
    ajoute("chevron takes no focus",
           [](RangeeFocus & rangee) { rangee.chevron->setFocusPolicy(Qt::NoFocus); });
    ajoute("chevron disabled", [](RangeeFocus & rangee) { rangee.chevron->setEnabled(false); });
    ajoute("chevron hidden", [](RangeeFocus & rangee) { rangee.chevron->hide(); });
}

void tst_LayoutHorizontalAvecChevronFocus::focusAuSuivant()
{
    QFETCH(Action, action);
    RangeeFocus rangee;
    QVERIFY(rangee.EstActive());
    rangee.CacheTout();
    rangee.chevron->setFocusPolicy(Qt::TabFocus);
    action(rangee);
    rangee.MontreTout();
    rangee.paves[1]->setFocus();
    rangee.apres->setFocusPolicy(Qt::ClickFocus); // Tab does not reach it

    rangee.MontrePremier();

    QVERIFY(rangee.avant->hasFocus());
}

// It would give the focus back to what has just lost it.
void tst_LayoutHorizontalAvecChevronFocus::focusAuSuivantSansMandataire()
{
    RangeeFocus rangee;
    QVERIFY(rangee.EstActive());
    rangee.MontreTout();
    rangee.paves[1]->setFocus();
    rangee.avant->setFocusProxy(rangee.paves[1]);
    rangee.chevron->setEnabled(false);

    rangee.MontrePremier();

    QVERIFY(rangee.apres->hasFocus());
}

void tst_LayoutHorizontalAvecChevronFocus::focusANulAutre()
{
    RangeeFocus rangee;
    QVERIFY(rangee.EstActive());
    rangee.MontreTout();
    rangee.paves[1]->setFocus();
    for (QWidget * const autre : {rangee.avant, rangee.apres})
        autre->setEnabled(false);
    rangee.chevron->setEnabled(false);

    rangee.CacheTout();

    QCOMPARE(rangee.fenetre.focusWidget(), nullptr);
}

void tst_LayoutHorizontalAvecChevronFocus::focusGarday()
{
    RangeeFocus rangee;
    QVERIFY(rangee.EstActive());
    rangee.MontreTout();

    for (QWidget * const autre :
         {static_cast<QWidget *>(rangee.paves[0]), static_cast<QWidget *>(rangee.avant)}) {
        autre->setFocus();
        rangee.MontrePremier();
        QVERIFY(autre->hasFocus());
    }
}

void tst_LayoutHorizontalAvecChevronFocus::focusDuChevronCachay()
{
    RangeeFocus rangee;
    QVERIFY(rangee.EstActive());
    rangee.MontrePremier();
    rangee.chevron->setFocus();
    QVERIFY(rangee.chevron->hasFocus());

    rangee.MontreTout();

    QVERIFY(!rangee.chevron->hasFocus());
    QVERIFY(rangee.fenetre.focusWidget());
}

void tst_LayoutHorizontalAvecChevronFocus::fenetreInactive()
{
    RangeeFocus rangee;
    rangee.MontreTout();
    rangee.paves[1]->setFocus();
    QWidget autre;
    autre.show();
    autre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&autre));

    rangee.MontrePremier();

    // What the window will give the focus to when it is active again.
    QCOMPARE(rangee.fenetre.focusWidget(), rangee.chevron);
}

void tst_LayoutHorizontalAvecChevronFocus::enfantAuFocus()
{
    RangeeFocus rangee;
    QVERIFY(rangee.EstActive());
    auto * const milieu = new QWidget(rangee.paves[1]);
    auto * const champ = new QLineEdit(milieu);
    milieu->show();
    rangee.MontreTout();
    champ->setFocus();
    QVERIFY(champ->hasFocus());

    rangee.MontrePremier();

    QVERIFY(rangee.chevron->hasFocus());
    QCOMPARE(champ->focusPolicy(), Qt::NoFocus);
}

void tst_LayoutHorizontalAvecChevronFocus::setFocusSansEffet()
{
    RangeeFocus rangee;
    QVERIFY(rangee.EstActive());
    rangee.MontrePremier();

    rangee.paves[2]->setFocus();

    QVERIFY(rangee.chevron->hasFocus());
}

void tst_LayoutHorizontalAvecChevronFocus::tab()
{
    RangeeFocus rangee;
    QVERIFY(rangee.EstActive());
    new QLineEdit(rangee.paves[2]);
    rangee.MontrePremier();
    QList<QWidget *> const permis{rangee.avant, rangee.apres, rangee.chevron, rangee.paves[0]};

    for (Qt::Key const touche : {Qt::Key_Tab, Qt::Key_Backtab}) {
        rangee.avant->setFocus();
        QSet<QWidget *> atteints;
        for (int i = 0; i < permis.size(); ++i) {
            QTest::keyClick(QApplication::focusWidget(), touche);
            QVERIFY(permis.contains(QApplication::focusWidget()));
            atteints.insert(QApplication::focusWidget());
        }
        QCOMPARE(atteints.size(), permis.size());
    }
}

void tst_LayoutHorizontalAvecChevronFocus::mnemonique()
{
    RangeeFocus rangee;
    QVERIFY(rangee.EstActive());
    auto * const etiquette = new QLabel(u"&Z"_s, &rangee.fenetre);
    etiquette->setBuddy(rangee.paves[2]);
    etiquette->show();
    rangee.avant->setFocus();
    rangee.MontrePremier();

    QTest::keyClick(rangee.avant, Qt::Key_Z, Qt::AltModifier);
    QVERIFY(rangee.avant->hasFocus());

    rangee.MontreTout();
    QTest::keyClick(rangee.avant, Qt::Key_Z, Qt::AltModifier);
    QVERIFY(rangee.paves[2]->hasFocus());
}

void tst_LayoutHorizontalAvecChevronFocus::clic()
{
    RangeeFocus rangee;
    QVERIFY(rangee.EstActive());
    rangee.paves[2]->setMinimumSize(30, 10);
    rangee.avant->setFocus();
    rangee.MontrePremier();

    QTest::mouseClick(rangee.paves[2], Qt::LeftButton);

    QVERIFY(rangee.avant->hasFocus());
}

void tst_LayoutHorizontalAvecChevronFocus::politiqueRendue_data()
{
    QTest::addColumn<Action>("action");
    auto const ajoute = [](char const * nom, Action const & action) {
        QTest::newRow(nom) << action;
    };
    ajoute("visible again", [](RangeeFocus & rangee) { rangee.MontreTout(); });
    ajoute("item taken out", [](RangeeFocus & rangee) { delete rangee.layout->takeAt(1); });
    ajoute("item removed", [](RangeeFocus & rangee) {
        QLayoutItem * const item = rangee.layout->itemAt(1);
        rangee.layout->removeItem(item);
        delete item;
    });
    ajoute("widget removed",
           [](RangeeFocus & rangee) { rangee.layout->removeWidget(rangee.paves[1]); });
    ajoute("layout destroyed", [](RangeeFocus & rangee) { delete rangee.layout; });
    ajoute("hidden twice", [](RangeeFocus & rangee) {
        rangee.CacheTout();
        rangee.MontreTout();
    });
}

void tst_LayoutHorizontalAvecChevronFocus::politiqueRendue()
{
    QFETCH(Action, action);
    for (Qt::FocusPolicy const politique :
         {Qt::StrongFocus, Qt::TabFocus, Qt::ClickFocus, Qt::WheelFocus, Qt::NoFocus}) {
        RangeeFocus rangee;
        rangee.paves[1]->setFocusPolicy(politique);
        rangee.MontrePremier();
        QCOMPARE(rangee.paves[1]->focusPolicy(), Qt::NoFocus);

        action(rangee);

        QCOMPARE(rangee.paves[1]->focusPolicy(), politique);
    }
}

void tst_LayoutHorizontalAvecChevronFocus::politiqueDesEnfants()
{
    RangeeFocus rangee;
    auto * const milieu = new QWidget(rangee.paves[1]);
    auto * const bouton = new QPushButton(milieu);
    bouton->setFocusPolicy(Qt::TabFocus);
    rangee.MontrePremier();
    QCOMPARE(bouton->focusPolicy(), Qt::NoFocus);
    QCOMPARE(milieu->focusPolicy(), Qt::NoFocus);

    rangee.MontreTout();

    QCOMPARE(bouton->focusPolicy(), Qt::TabFocus);
    QCOMPARE(milieu->focusPolicy(), Qt::NoFocus);
}

void tst_LayoutHorizontalAvecChevronFocus::politiqueDeLHote()
{
    RangeeFocus rangee;
    rangee.MontrePremier();

    rangee.paves[1]->setFocusPolicy(Qt::ClickFocus);
    rangee.MontreTout();

    QCOMPARE(rangee.paves[1]->focusPolicy(), Qt::ClickFocus);
}

void tst_LayoutHorizontalAvecChevronFocus::politiqueDeLHotePuisPasse()
{
    RangeeFocus rangee;
    rangee.paves[2]->setFocusPolicy(Qt::NoFocus);
    rangee.MontrePremier();

    rangee.paves[1]->setFocusPolicy(Qt::ClickFocus);
    rangee.paves[2]->setFocusPolicy(Qt::TabFocus);
    rangee.CacheTout();
    QCOMPARE(rangee.paves[1]->focusPolicy(), Qt::NoFocus);
    QCOMPARE(rangee.paves[2]->focusPolicy(), Qt::NoFocus);
    rangee.MontreTout();

    QCOMPARE(rangee.paves[1]->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(rangee.paves[2]->focusPolicy(), Qt::TabFocus);
}

void tst_LayoutHorizontalAvecChevronFocus::enfantAjoutay()
{
    RangeeFocus rangee;
    rangee.MontrePremier();

    auto * const champ = new QLineEdit(rangee.paves[1]);
    rangee.MontrePremier();
    QCOMPARE(champ->focusPolicy(), Qt::NoFocus);

    rangee.MontreTout();
    QCOMPARE(champ->focusPolicy(), Qt::StrongFocus);
}

// Each of the two would hand the focus to the other.
void tst_LayoutHorizontalAvecChevronFocus::enfantsAjoutesSansAutre()
{
    RangeeFocus rangee;
    QVERIFY(rangee.EstActive());
    for (QWidget * const autre :
         {static_cast<QWidget *>(rangee.avant), static_cast<QWidget *>(rangee.apres),
          static_cast<QWidget *>(rangee.chevron)})
        autre->setEnabled(false);
    rangee.CacheTout();
    auto * const premier = new QLineEdit(rangee.paves[1]);
    auto * const second = new QLineEdit(rangee.paves[1]);
    premier->show();
    second->show();

    premier->setFocus();

    QCOMPARE(rangee.fenetre.focusWidget(), nullptr);
    QCOMPARE(second->focusPolicy(), Qt::NoFocus);
    rangee.MontreTout();
    QCOMPARE(second->focusPolicy(), Qt::StrongFocus);
}

void tst_LayoutHorizontalAvecChevronFocus::tabEnArriereDepuisLeChevron()
{
    RangeeFocus rangee;
    QVERIFY(rangee.EstActive());
    QWidget::setTabOrder(rangee.paves[2], rangee.chevron);
    rangee.MontrePremier();
    // The host gives it a policy while it is hidden.
    rangee.paves[1]->setFocusPolicy(Qt::StrongFocus);
    rangee.chevron->setFocus();

    QTest::keyClick(rangee.chevron, Qt::Key_Backtab);
    QVERIFY(rangee.chevron->hasFocus());
    QTest::keyClick(rangee.chevron, Qt::Key_Backtab);

    // No trap: the policy has been taken from it, and comes back.
    QVERIFY(rangee.paves[0]->hasFocus());
    rangee.MontreTout();
    QCOMPARE(rangee.paves[1]->focusPolicy(), Qt::StrongFocus);
}

void tst_LayoutHorizontalAvecChevronFocus::rangeeDansUneRangee()
{
    RangeeFocus rangee;
    QVERIFY(rangee.EstActive());
    auto * const chevron = new Pave(20, rangee.paves[1]);
    chevron->setFocusPolicy(Qt::TabFocus);
    LayoutHorizontalAvecChevron interne(rangee.paves[1], chevron, 0);
    auto * const pave = new Pave(10);
    pave->setFocusPolicy(Qt::StrongFocus);
    interne.addWidget(pave);
    rangee.MontreTout();
    interne.activate();
    QCOMPARE(chevron->focusPolicy(), Qt::NoFocus);
    rangee.MontrePremier();
    interne.setGeometry({});
    rangee.MontrePremier();
    rangee.MontreTout();
    interne.setGeometry({0, 0, 30, 10});

    chevron->setFocus();

    QVERIFY(!chevron->hasFocus());
    QCOMPARE(chevron->focusPolicy(), Qt::NoFocus);
    QCOMPARE(pave->focusPolicy(), Qt::StrongFocus);
}

void tst_LayoutHorizontalAvecChevronFocus::enfantParti()
{
    RangeeFocus rangee;
    auto * const champ = new QLineEdit(rangee.paves[1]);
    auto * const condamnay = new QLineEdit(rangee.paves[1]);
    rangee.MontrePremier();

    champ->setParent(&rangee.fenetre);
    delete condamnay;
    rangee.MontrePremier();

    QCOMPARE(champ->focusPolicy(), Qt::StrongFocus);
}

void tst_LayoutHorizontalAvecChevronFocus::mandataire()
{
    RangeeFocus rangee;
    QVERIFY(rangee.EstActive());
    // Its field gives the focus on to the combo box.
    auto * const combo = new QComboBox(rangee.paves[1]);
    combo->setEditable(true);
    combo->setFocusPolicy(Qt::TabFocus);
    combo->show();
    // The policy of one whose proxy is outside the row stays.
    rangee.paves[2]->setFocusProxy(rangee.apres);
    rangee.MontrePremier();

    QCOMPARE(combo->focusPolicy(), Qt::NoFocus);
    QCOMPARE(rangee.apres->focusPolicy(), Qt::StrongFocus);
    combo->lineEdit()->setFocus();
    QVERIFY(rangee.chevron->hasFocus());

    rangee.MontreTout();
    QCOMPARE(combo->focusPolicy(), Qt::TabFocus);
}

void tst_LayoutHorizontalAvecChevronFocus::chevronSansPlace()
{
    RangeeFocus rangee;

    rangee.MontreTout();
    QCOMPARE(rangee.chevron->focusPolicy(), Qt::NoFocus);

    rangee.MontrePremier();
    QCOMPARE(rangee.chevron->focusPolicy(), Qt::TabFocus);
}

void tst_LayoutHorizontalAvecChevronFocus::sansChevron()
{
    Rangee rangee({30, 100}, false);
    rangee.paves.at(1)->setFocusPolicy(Qt::StrongFocus);

    rangee.Place(60);

    // It has no room, but it is seen.
    QVERIFY(!rangee.layout->ItemEstVisible(1));
    QCOMPARE(rangee.paves.at(1)->focusPolicy(), Qt::StrongFocus);
}

void tst_LayoutHorizontalAvecChevronFocus::chevronDetruit()
{
    RangeeFocus rangee;
    rangee.MontrePremier();

    delete rangee.chevron;
    rangee.MontrePremier();

    QCOMPARE(rangee.paves[1]->focusPolicy(), Qt::StrongFocus);
}

void tst_LayoutHorizontalAvecChevronFocus::widgetDetruit()
{
    RangeeFocus rangee;
    QVERIFY(rangee.EstActive());
    new QLineEdit(rangee.paves[1]);
    rangee.MontrePremier();

    rangee.layout->setEnabled(true);
    delete rangee.paves[1];
    QCOMPARE(rangee.layout->count(), 2);
    rangee.MontreTout();

    QCOMPARE(rangee.paves[2]->focusPolicy(), Qt::StrongFocus);
}

QTEST_MAIN(tst_LayoutHorizontalAvecChevronFocus)
#include "tst_LayoutHorizontalAvecChevronFocus.moc"
