// tests/dialogs/tst_DMessageBoxIcone.cpp
//
// An application that brings an icon for the title bar in its resources, as this program does.
#include "EssaisBoites.h"

#include "dialogs/StockageReponse.h"

#include <QtTest>

using namespace DDialogue;
using namespace Qt::StringLiterals;

class tst_DMessageBoxIcone : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void iconeDeLApplication();
};

void tst_DMessageBoxIcone::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    StockageReponse::LibereSingletons();
}

void tst_DMessageBoxIcone::iconeDeLApplication()
{
    auto const image = [](QIcon const & icone) { return icone.pixmap(16, 16).toImage(); };
    QImage const attendue = image(QIcon(u":/Images/IconeBarreTitre.png"_s));
    QVERIFY(!attendue.isNull());
    QVERIFY(attendue != image(QIcon(u":/Images/IconeBarreTitreDefautLibFabrelGui.png"_s)));

    DAlerteInfo const info(DAlerteInfo::kQuestion, u"Message"_s, {}, u"Essai"_s);
    DAlerte(nullptr, info, kBoutonOk, kBoutonOk, kBoutonOk, [](eBoutons const &) {});

    QCOMPARE(image(DonneBoiteVisible()->windowIcon()), attendue);
    DonneBoiteVisible()->button(QMessageBox::Ok)->click();
}

QTEST_MAIN(tst_DMessageBoxIcone)
#include "tst_DMessageBoxIcone.moc"
