// tests/controls/tst_DLabelElisionEchelle.cpp
#include "controls/DComboBoxAvecDLabelElision.h"
#include "controls/DLabelElision.h"
#include "controls/ElidedLabel.h"

#include "controls/EssaisElision.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace EssaisElision;

class tst_DLabelElisionEchelle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void label_data();
    void label();
    void labelDePlusieursLignes_data();
    void labelDePlusieursLignes();
    void combo_data();
    void combo();

private:
    void Ecran(double ratio);

    std::unique_ptr<QApplication> monApplication;
};

// An application whose only screen has the ratio.
void tst_DLabelElisionEchelle::Ecran(double ratio)
{
    static int compte = 1;
    static char nom[] = "tst_DLabelElisionEchelle";
    static char * arguments[] = {nom, nullptr};
    monApplication.reset();
    qputenv("QT_SCALE_FACTOR", QByteArray::number(ratio));
    monApplication = std::make_unique<QApplication>(compte, arguments);
}

void tst_DLabelElisionEchelle::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DLabelElisionEchelle::label_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("1.25") << 1.25;
    QTest::newRow("2") << 2.0;
}

void tst_DLabelElisionEchelle::label()
{
    QFETCH(double, ratio);
    Ecran(ratio);
    for (auto const mode : {DLabelElision::kElisionFin, DLabelElision::kElisionDebut}) {
        DLabelElision label(kBalisay, nullptr);
        label.PrendsModeElision(mode);
        label.PrendsCouleurFondElipse(kCouleurEllipse);
        label.resize(label.sizeHint());
        QVERIFY(!Encre::BornesDe(label.grab().toImage(), kCouleurEllipse).isValid());
        int const entier =
            Encre::BornesDe(label.grab().toImage(),
                            mode == DLabelElision::kElisionFin ? kCouleurDebut : kCouleurFin)
                .width();

        label.resize(label.sizeHint() - QSize(20, 0));
        QImage const image = label.grab().toImage();

        QCOMPARE(image.devicePixelRatio(), ratio);
        QRect const ellipse = Encre::BornesDe(image, kCouleurEllipse);
        QVERIFY(qAbs(ellipse.width() - LargeurEllipse(label) * ratio) <= 2);
        QRect const visible = Encre::BornesDe(
            image, mode == DLabelElision::kElisionFin ? kCouleurDebut : kCouleurFin);
        QVERIFY(qAbs(visible.width() - entier) <= 1);
        if (mode == DLabelElision::kElisionFin)
            QVERIFY(ellipse.left() > visible.right());
        else
            QVERIFY(ellipse.right() < visible.left());
        // The height that layouts give it holds the whole line.
        QCOMPARE(visible.top(), 0);
        QVERIFY(visible.bottom() < image.height());
    }
}

void tst_DLabelElisionEchelle::labelDePlusieursLignes_data()
{
    label_data();
}

void tst_DLabelElisionEchelle::labelDePlusieursLignes()
{
    QFETCH(double, ratio);
    Ecran(ratio);
    ElidedLabel label(u"un mot et un autre, sur beaucoup de lignes "_s.repeated(10), nullptr);
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    label.setPalette(palette);
    int const interligne = label.fontMetrics().lineSpacing();
    label.resize(150, 3 * interligne);

    QRect const encre = Encre::BornesEncre(label.grab().toImage());

    QVERIFY(label.isElided());
    QVERIFY(encre.bottom() >= 2 * interligne * ratio);
    QVERIFY(encre.right() > 150 * ratio / 2);
}

void tst_DLabelElisionEchelle::combo_data()
{
    label_data();
}

void tst_DLabelElisionEchelle::combo()
{
    QFETCH(double, ratio);
    Ecran(ratio);
    DComboBoxAvecDLabelElision combo;
    combo.addItem(kBalisay + u"un texte bien trop long "_s.repeated(10));
    combo.resize(combo.sizeHint());
    QImage const image = combo.grab().toImage();
    QRect const vert = Encre::BornesDe(image, kCouleurDebut);
    QVERIFY(vert.isValid());
    QVERIFY(qAbs(vert.center().y() - image.height() / 2) <= 2 * ratio);
}

QTEST_APPLESS_MAIN(tst_DLabelElisionEchelle)
#include "tst_DLabelElisionEchelle.moc"
