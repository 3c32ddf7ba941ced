#include "lists/EssaisListeEditable.h"

#include <QStyleOptionViewItem>
#include <QStyledItemDelegate>

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// The place of the editor in its row.

class tst_DelegayWidgetListeEditable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void geometrie_data();
    void geometrie();
    void sansEditeur();
};

void tst_DelegayWidgetListeEditable::cleanup()
{
    QVERIFY(ToutEstParti());
}

void tst_DelegayWidgetListeEditable::geometrie_data()
{
    QTest::addColumn<int>("haut");
    QTest::addColumn<int>("surplus"); // of the row over what the text needs
    QTest::newRow("high row, even rest") << 0 << 20;
    QTest::newRow("high row, odd rest") << 0 << 21;
    QTest::newRow("row down the list") << 130 << 20;
    QTest::newRow("row above the view") << -15 << 20;
    QTest::newRow("just high enough") << 10 << 2;
    QTest::newRow("one pixel too low") << 10 << 1;
    QTest::newRow("low row") << 10 << -6;
}

void tst_DelegayWidgetListeEditable::geometrie()
{
    QFETCH(int, haut);
    QFETCH(int, surplus);
    ListeEssai liste;
    liste.Remplis({u"texte"_s});
    QLineEdit editeur;
    QStyleOptionViewItem option;
    option.fontMetrics = liste.fontMetrics();
    int const texte = option.fontMetrics.ascent() + option.fontMetrics.descent() + 2;
    option.rect = QRect(30, haut, 100, texte + surplus);
    liste.PreteVue()->itemDelegate()->updateEditorGeometry(&editeur, option, liste.Index(0));
    int const hauteur = std::min(texte, texte + surplus - 2);
    QCOMPARE(editeur.height(), hauteur);
    QCOMPARE(editeur.y(), haut + (texte + surplus - hauteur) / 2);
    // Across the row it stands where the base puts it.
    QLineEdit temoin;
    QStyledItemDelegate().updateEditorGeometry(&temoin, option, liste.Index(0));
    QCOMPARE(editeur.x(), temoin.x());
    QCOMPARE(editeur.width(), temoin.width());
}

void tst_DelegayWidgetListeEditable::sansEditeur()
{
    ListeEssai liste;
    liste.Remplis({u"texte"_s});
    liste.PreteVue()->itemDelegate()->updateEditorGeometry(nullptr, QStyleOptionViewItem(),
                                                           liste.Index(0));
}

QTEST_MAIN(tst_DelegayWidgetListeEditable)
#include "tst_DelegayWidgetListeEditable.moc"
