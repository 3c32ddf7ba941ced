#include "lists/WidgetListeEditableDragAndDrop.h"

#include "lists/DorvelStyleDropLigneComplete_p.h"
#include "lists/EssaisVariantes.h"
#include "lists/Glissement.h"
#include "lists/StyleEspion.h"

#include "style/DStyleProxy.h"

#include <QHeaderView>
#include <QtTest>

#include <memory>

using namespace EssaisVariantes;
using namespace Qt::StringLiterals;

using Liste = Ouverte<WidgetListeEditableDragAndDrop>;

// The mark of a drop, and all else that the view's own style leaves to the application's.
class tst_WidgetListeEditableDragAndDropStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void marqueSurToutLaLigne_data();
    void marqueSurToutLaLigne();
    void marqueAvecFeuilleDeStyle();
    void marqueDansLeStyleDeLaFamille();
    void styleDeLApplication();
    void autreStyleDeLApplication();
    void feuilleDeStyle();
    void feuilleDUnWidget_data();
    void feuilleDUnWidget();
    void finDeLaListe();
    void finDuStyle();

private:
    QList<StyleEspion::Marque> MarquesAuDessus(int rangee, int colonne, bool milieu = false);

    StyleEspion * monStyle = nullptr; // the application's
    std::unique_ptr<Liste> maListe;
};

namespace {

int LisMesure(QWidget const & widget)
{
    return widget.style()->pixelMetric(QStyle::PM_CustomBase, nullptr, &widget);
}

} // namespace

void tst_WidgetListeEditableDragAndDropStyle::init()
{
    monStyle = new StyleEspion;
    QApplication::setStyle(monStyle);
    maListe = std::make_unique<Liste>();
    maListe->Remplis({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    maListe->Montre();
}

void tst_WidgetListeEditableDragAndDropStyle::cleanup()
{
    maListe.reset();
    qApp->setStyleSheet({});
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s)); // one without hidden widgets
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// What is painted while the first row is held there.
QList<StyleEspion::Marque>
tst_WidgetListeEditableDragAndDropStyle::MarquesAuDessus(int rangee, int colonne, bool milieu)
{
    DTreeView & vue = *maListe->PreteVue();
    QPoint place = maListe->Milieu(rangee, colonne);
    place -= QPoint(0, milieu ? 2 : vue.visualRect(vue.model()->index(rangee, 0)).height() / 2 - 1);
    QList<StyleEspion::Marque> marques;
    maListe->Choisis({0});
    bool const glisse = Glissement::Execute(
        vue, maListe->Milieu(0),
        {[&] { Glissement::Deplace(vue, place); },
         [&] {
             monStyle->marques.clear();
             vue.viewport()->repaint();
             marques = monStyle->marques;
         },
         [&] { QTest::keyClick(vue.window()->windowHandle(), Qt::Key_Escape); }});
    return glisse ? marques : QList<StyleEspion::Marque>();
}

void tst_WidgetListeEditableDragAndDropStyle::marqueSurToutLaLigne_data()
{
    QTest::addColumn<int>("colonne");
    QTest::addColumn<bool>("milieu");
    QTest::newRow("first column") << 0 << false;
    QTest::newRow("last column") << 1 << false;
    QTest::newRow("in the middle of a row") << 0 << true;
}

void tst_WidgetListeEditableDragAndDropStyle::marqueSurToutLaLigne()
{
    QFETCH(int, colonne);
    QFETCH(bool, milieu);
    DTreeView const & vue = *maListe->PreteVue();

    QList<StyleEspion::Marque> const marques = MarquesAuDessus(2, colonne, milieu);

    QCOMPARE(marques.size(), 1);
    QRect const rect = marques.first().rect;
    QCOMPARE(rect.left(), 0);
    QCOMPARE(rect.right(), vue.width());
    QCOMPARE(rect.top(), vue.visualRect(vue.model()->index(2, 0)).top());
    QCOMPARE(rect.height(), 0); // between two rows, not around one
    QCOMPARE(maListe->Textes().join(QString()), u"abcd"_s);
}

void tst_WidgetListeEditableDragAndDropStyle::marqueAvecFeuilleDeStyle()
{
    qApp->setStyleSheet(u"QTreeView { border: none }"_s);
    QList<StyleEspion::Marque> const marques = MarquesAuDessus(2, 1);
    QCOMPARE(marques.size(), 1);
    QCOMPARE(marques.first().rect.left(), 0);
    QCOMPARE(marques.first().rect.right(), maListe->PreteVue()->width());
}

void tst_WidgetListeEditableDragAndDropStyle::marqueDansLeStyleDeLaFamille()
{
    monStyle = new StyleEspion;
    QApplication::setStyle(new DStyleProxy(monStyle));
    QList<StyleEspion::Marque> const marques = MarquesAuDessus(2, 1);
    QCOMPARE(marques.size(), 1);
    QCOMPARE(marques.first().rect.left(), 0);
    QCOMPARE(marques.first().rect.right(), maListe->PreteVue()->width());
}

void tst_WidgetListeEditableDragAndDropStyle::styleDeLApplication()
{
    DTreeView & vue = *maListe->PreteVue();
    QVERIFY(vue.style() != monStyle);
    QCOMPARE(LisMesure(vue), StyleEspion::kMesureReconnue);
    QCOMPARE(vue.header()->style(), monStyle);
    QVERIFY(monStyle->polis.contains(&vue));
}

void tst_WidgetListeEditableDragAndDropStyle::autreStyleDeLApplication()
{
    DTreeView & vue = *maListe->PreteVue();
    QApplication::setStyle(QStyleFactory::create(u"Windows"_s));
    QVERIFY(LisMesure(vue) != StyleEspion::kMesureReconnue);

    auto * const nouveau = new StyleEspion;
    QSignalSpy const selections(maListe.get(), &Liste::SignalSelectionChangay);
    QApplication::setStyle(nouveau);

    QCOMPARE(LisMesure(vue), StyleEspion::kMesureReconnue);
    QVERIFY(nouveau->polis.contains(&vue));
    QCOMPARE(nouveau->polis.count(&vue), 1);
    QCOMPARE(selections.count(), 0);
}

void tst_WidgetListeEditableDragAndDropStyle::feuilleDeStyle()
{
    DTreeView & vue = *maListe->PreteVue();
    qApp->setStyleSheet(u"WidgetListeEditable QTreeView { color: #123456 }"_s);
    QCOMPARE(vue.palette().color(QPalette::Text), QColor(0x12, 0x34, 0x56));
    QCOMPARE(LisMesure(vue), StyleEspion::kMesureReconnue);
    qApp->setStyleSheet({});
    QVERIFY(vue.palette().color(QPalette::Text) != QColor(0x12, 0x34, 0x56));
    QCOMPARE(LisMesure(vue), StyleEspion::kMesureReconnue);
}

void tst_WidgetListeEditableDragAndDropStyle::feuilleDUnWidget_data()
{
    QTest::addColumn<bool>("surLaVue");
    QTest::newRow("of the view") << true;
    QTest::newRow("of the list") << false;
}

// A sheet of its own neither hides the mark nor outlives its end, whatever the application's style.
void tst_WidgetListeEditableDragAndDropStyle::feuilleDUnWidget()
{
    QFETCH(bool, surLaVue);
    DTreeView & vue = *maListe->PreteVue();
    QWidget & widget = surLaVue ? static_cast<QWidget &>(vue) : *maListe;

    widget.setStyleSheet(u"QTreeView { color: #123456 }"_s);
    QCOMPARE(vue.palette().color(QPalette::Text), QColor(0x12, 0x34, 0x56));
    monStyle = new StyleEspion;
    QApplication::setStyle(monStyle);
    QCOMPARE(vue.palette().color(QPalette::Text), QColor(0x12, 0x34, 0x56));
    QCOMPARE(LisMesure(vue), StyleEspion::kMesureReconnue);
    QList<StyleEspion::Marque> const marques = MarquesAuDessus(2, 1);
    QCOMPARE(marques.size(), 1);
    QCOMPARE(marques.first().rect.left(), 0);

    widget.setStyleSheet({});
    QVERIFY(vue.palette().color(QPalette::Text) != QColor(0x12, 0x34, 0x56));
    QCOMPARE(MarquesAuDessus(2, 1).value(0).rect.left(), 0);
}

void tst_WidgetListeEditableDragAndDropStyle::finDeLaListe()
{
    Liste autre;
    maListe.reset();
    QCOMPARE(LisMesure(*autre.PreteVue()), StyleEspion::kMesureReconnue);
    QCOMPARE(QApplication::style(), monStyle);
}

// As when the application object goes before its last widgets.
void tst_WidgetListeEditableDragAndDropStyle::finDuStyle()
{
    delete DorvelStyleDropLigneComplete::Prete();
    QCOMPARE(LisMesure(*maListe->PreteVue()), StyleEspion::kMesureReconnue);
    maListe->PreteVue()->viewport()->repaint();
    Liste autre;
    QCOMPARE(autre.PreteVue()->style(), DorvelStyleDropLigneComplete::Prete());
    maListe.reset();
    QCOMPARE(LisMesure(*autre.PreteVue()), StyleEspion::kMesureReconnue);
}

int main(int nombre, char ** arguments)
{
    qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts"); // which leaves drags to Qt
    QApplication const application(nombre, arguments);
    tst_WidgetListeEditableDragAndDropStyle essai;
    return QTest::qExec(&essai, nombre, arguments);
}

#include "tst_WidgetListeEditableDragAndDropStyle.moc"
