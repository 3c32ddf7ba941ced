// tests/galerie/tst_PageTextes.cpp
#include "PageTextes.h"

#include "CatalogueAffichay.h"
#include "Langues.h"
#include "TexteCellule.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {
constexpr int kIdentifiant = 0; // columns
constexpr int kContexte = 1;
constexpr int kPremiereLangue = 2;
} // namespace

class tst_PageTextes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tousLesMessages();
    void contextesDAbord();
    void filtre();
    void celluleEntiere();
    void pluriel();
};

void tst_PageTextes::tousLesMessages()
{
    PageTextes const page;
    auto const * const table = page.findChild<QTableWidget *>();

    QVERIFY(!table->accessibleName().isEmpty());
    QCOMPARE(table->rowCount(), LisClesCatalogue(u":/fichiers/GUIFr.mo"_s).size());
    QCOMPARE(table->columnCount(), kPremiereLangue + DonneLangues().size());
    for (int i = 0; i < DonneLangues().size(); ++i)
        QCOMPARE(table->horizontalHeaderItem(kPremiereLangue + i)->text(),
                 DonneLangues().at(i).nom);
    for (int ligne = 0; ligne < table->rowCount(); ++ligne)
        for (int colonne = kPremiereLangue; colonne < table->columnCount(); ++colonne)
            QVERIFY(!table->item(ligne, colonne)->text().isEmpty());
}

void tst_PageTextes::contextesDAbord()
{
    PageTextes const page;
    auto const * const table = page.findChild<QTableWidget *>();
    auto const aContexte = [&](int ligne) {
        return !table->item(ligne, kContexte)->text().isEmpty();
    };

    QVERIFY(aContexte(0));
    QVERIFY(!aContexte(table->rowCount() - 1));
    for (int ligne = 1; ligne < table->rowCount(); ++ligne)
        QVERIFY(aContexte(ligne - 1) || !aContexte(ligne));
}

void tst_PageTextes::filtre()
{
    PageTextes const page;
    auto const * const table = page.findChild<QTableWidget *>();
    QString const texte = table->item(table->rowCount() - 1, kIdentifiant)->text();

    page.findChild<QLineEdit *>(u"filtreMessages"_s)->setText(texte.toUpper());

    QVERIFY(!table->isRowHidden(table->rowCount() - 1));
    for (int ligne = 0; ligne < table->rowCount(); ++ligne) {
        bool contient = false;
        for (int colonne = 0; colonne < table->columnCount(); ++colonne)
            contient = contient ||
                       table->item(ligne, colonne)->text().contains(texte, Qt::CaseInsensitive);
        QCOMPARE(table->isRowHidden(ligne), !contient);
    }
}

void tst_PageTextes::celluleEntiere()
{
    PageTextes const page;
    auto * const table = page.findChild<QTableWidget *>();

    table->setCurrentCell(3, kContexte);

    QCOMPARE(page.findChild<TexteCellule *>()->toPlainText(), table->item(3, kContexte)->text());
}

void tst_PageTextes::pluriel()
{
    PageTextes const page;
    auto const phrases = [&] {
        QStringList textes;
        for (QLabel const * const etiquette : page.findChildren<QLabel *>())
            if (etiquette->text().contains(QRegularExpression(u"^\\d+ c"_s)))
                textes.append(etiquette->text());
        return textes;
    };

    page.findChild<QSpinBox *>(u"nombre"_s)->setValue(1);
    QCOMPARE(phrases(), (QStringList{u"1 caractère restant"_s, u"1 character remaining"_s,
                                     u"1 character remaining"_s}));
    page.findChild<QSpinBox *>(u"nombre"_s)->setValue(0);
    QCOMPARE(phrases(), (QStringList{u"0 caractère restant"_s, u"0 characters remaining"_s,
                                     u"0 characters remaining"_s}));
}

QTEST_MAIN(tst_PageTextes)
#include "tst_PageTextes.moc"
