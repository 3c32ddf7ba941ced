// tests/navigation/tst_DFilAriane.cpp
#include "navigation/DFilAriane.h"

#include "navigation/ElementFilAriane.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

/// The widgets of the strip in the order of its layout, null for a stretch.
QList<QWidget *> Contenu(DFilAriane const & fil)
{
    QList<QWidget *> contenu;
    for (int i = 0; i < fil.layout()->count(); ++i)
        contenu.append(fil.layout()->itemAt(i)->widget());
    return contenu;
}

} // namespace

class tst_DFilAriane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void ordreDeCreation();
    void taille();
    void inconnu();
    void memeIdentifiant();
    void inconnuPuisCree();
    void centray();
    void sansSignal();
};

void tst_DFilAriane::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DFilAriane::construction()
{
    QWidget parent;
    DFilAriane const fil(&parent);
    QCOMPARE(fil.parentWidget(), &parent);
    auto * const disposition = qobject_cast<QHBoxLayout *>(fil.layout());
    QVERIFY(disposition);
    QCOMPARE(disposition->contentsMargins(), QMargins());
    QCOMPARE(disposition->spacing(), 0);
    QCOMPARE(Contenu(fil), QList<QWidget *>({nullptr, nullptr}));
    for (int const bout : {0, 1}) {
        QVERIFY(disposition->itemAt(bout)->spacerItem());
        QCOMPARE(disposition->stretch(bout), 0);
    }
}

void tst_DFilAriane::ordreDeCreation()
{
    DFilAriane fil(nullptr);
    fil.CreeUnElement(7);
    fil.CreeUnElement(-2);
    fil.CreeUnElement(3);
    QCOMPARE(Contenu(fil), QList<QWidget *>({nullptr, fil.PreteUnElement(7), fil.PreteUnElement(-2),
                                             fil.PreteUnElement(3), nullptr}));
    QCOMPARE(fil.PreteUnElement(7)->parentWidget(), &fil);
}

void tst_DFilAriane::taille()
{
    DFilAriane fil(nullptr);
    fil.CreeUnElement(1);
    QSizePolicy const politique = fil.PreteUnElement(1)->sizePolicy();
    QCOMPARE(politique.horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(politique.verticalPolicy(), QSizePolicy::Minimum);
}

void tst_DFilAriane::inconnu()
{
    DFilAriane fil(nullptr);
    QCOMPARE(fil.PreteUnElement(5), nullptr);
    QCOMPARE(fil.PreteUnElement(5), nullptr); // the entry that the first one left
    QCOMPARE(fil.layout()->count(), 2);
    QCOMPARE(fil.findChildren<ElementFilAriane *>().size(), 0);
}

void tst_DFilAriane::memeIdentifiant()
{
    DFilAriane fil(nullptr);
    fil.CreeUnElement(1);
    QPointer<ElementFilAriane> const ancien = fil.PreteUnElement(1);
    fil.CreeUnElement(1);
    QVERIFY(ancien);
    QVERIFY(fil.PreteUnElement(1) != ancien);
    QCOMPARE(Contenu(fil), QList<QWidget *>({nullptr, ancien, fil.PreteUnElement(1), nullptr}));
}

void tst_DFilAriane::inconnuPuisCree()
{
    DFilAriane fil(nullptr);
    QVERIFY(!fil.PreteUnElement(1));
    fil.CreeUnElement(1);
    QVERIFY(fil.PreteUnElement(1));
}

// Both stretches take the same share of what is left.
void tst_DFilAriane::centray()
{
    DFilAriane fil(nullptr);
    fil.CreeUnElement(1);
    fil.CreeUnElement(2);
    fil.PreteUnElement(1)->PrendChaine(u"un"_s);
    fil.PreteUnElement(2)->PrendChaine(u"deux"_s);
    fil.resize(600, 40);
    fil.show();
    int const gauche = fil.PreteUnElement(1)->x();
    int const droite = fil.width() - fil.PreteUnElement(2)->geometry().right() - 1;
    QVERIFY(qAbs(gauche - droite) <= 1);
    QVERIFY(gauche >= 0);
    QCOMPARE(fil.PreteUnElement(2)->x(), fil.PreteUnElement(1)->geometry().right() + 1);
}

void tst_DFilAriane::sansSignal()
{
    QMetaObject const & meta = DFilAriane::staticMetaObject;
    QCOMPARE(meta.methodCount(), meta.superClass()->methodCount());
}

QTEST_MAIN(tst_DFilAriane)
#include "tst_DFilAriane.moc"
