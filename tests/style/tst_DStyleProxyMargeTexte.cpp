// tests/style/tst_DStyleProxyMargeTexte.cpp
#include "style/DStyleProxy.h"

#include "style/StyleDeMesures.h"

#include <QtTest>

#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr QMargins kMarge(4, 0, 0, 0);

QStyle * CreeFusion()
{
    return QStyleFactory::create(u"Fusion"_s);
}

// A widget with one field, which is itself or a child.
struct Fabrique
{
    char const * nom;
    std::function<std::unique_ptr<QWidget>()> cree;
};

std::vector<Fabrique> DonneFabriques()
{
    return {{"field", [] { return std::make_unique<QLineEdit>(u"jM"_s); }},
            {"field without a frame",
             [] {
                 auto champ = std::make_unique<QLineEdit>(u"jM"_s);
                 champ->setFrame(false);
                 return champ;
             }},
            {"spin box",
             [] {
                 auto boite = std::make_unique<QSpinBox>();
                 boite->setMaximum(99'999);
                 boite->setValue(88'888);
                 return boite;
             }},
            {"editable combo box", [] {
                 auto combo = std::make_unique<QComboBox>();
                 combo->setEditable(true);
                 combo->setEditText(u"jM"_s);
                 return combo;
             }}};
}

QLineEdit * PreteChamp(QWidget & widget)
{
    auto * const champ = qobject_cast<QLineEdit *>(&widget);
    return champ ? champ : widget.findChild<QLineEdit *>();
}

// A widget's style is not its children's.
void MetsStyle(QWidget & widget, QStyle * style)
{
    widget.setStyle(style);
    widget.ensurePolished();
    QLineEdit * const champ = PreteChamp(widget);
    if (champ && champ != &widget)
        MetsStyle(*champ, style);
}

// The letters of the field, in red alone, without what is around them.
QImage DonneLettres(QWidget & widget, QStyle & style)
{
    QPalette palette;
    palette.setColor(QPalette::All, QPalette::Base, Qt::white);
    palette.setColor(QPalette::All, QPalette::Text, Qt::red);
    palette.setColor(QPalette::All, QPalette::Highlight, Qt::white);
    palette.setColor(QPalette::All, QPalette::HighlightedText, Qt::red);
    MetsStyle(widget, &style);
    widget.setPalette(palette);
    QFont font = widget.font();
    font.setPixelSize(20);
    widget.setFont(font);
    widget.resize(220, 50);
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    widget.render(&image);
    QRect etendue;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            QRgb const pixel = image.pixel(x, y);
            if (qRed(pixel) - qBlue(pixel) > 10)
                etendue |= QRect(x, y, 1, 1);
        }
    }
    MetsStyle(widget, nullptr);
    return image.copy(etendue);
}

} // namespace

// Fields whose base style writes near the left edge have room there for their first letter.
class tst_DStyleProxyMargeTexte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void contenuDansLeChamp_data();
    void contenuDansLeChamp();
    void ajouteeEtOtee_data();
    void ajouteeEtOtee();
    void ajouteeALaSienne();
    void margesDeLApplication();
    void margesDeLApplicationGardees();
    void autreStyle();
    void styleDeLApplication();
    void feuilleDeStyle();
    void autresWidgets();
    void premiereLettreEntiere_data();
    void premiereLettreEntiere();
};

void tst_DStyleProxyMargeTexte::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyMargeTexte::contenuDansLeChamp_data()
{
    QTest::addColumn<int>("gauche"); // where the base has the contents
    QTest::addColumn<bool>("marge");
    QTest::newRow("well inside") << 9 << false;
    QTest::newRow("just inside") << 4 << false;
    QTest::newRow("a pixel out") << 3 << true;
    QTest::newRow("at the edge") << 0 << true;
}

void tst_DStyleProxyMargeTexte::contenuDansLeChamp()
{
    QFETCH(int, gauche);
    QFETCH(bool, marge);
    auto * const base = new StyleDeMesures;
    base->elements[QStyle::SE_LineEditContents] = QRect(gauche, 3, 80, 18);
    DStyleProxy style(base);
    QLineEdit champ;
    MetsStyle(champ, &style);
    QCOMPARE(champ.textMargins(), marge ? kMarge : QMargins());
    MetsStyle(champ, nullptr);
    QCOMPARE(champ.textMargins(), QMargins());
}

void tst_DStyleProxyMargeTexte::ajouteeEtOtee_data()
{
    QTest::addColumn<int>("fabrique");
    std::vector<Fabrique> const fabriques = DonneFabriques();
    for (std::size_t i = 0; i < fabriques.size(); ++i)
        QTest::newRow(fabriques[i].nom) << int(i);
}

void tst_DStyleProxyMargeTexte::ajouteeEtOtee()
{
    QFETCH(int, fabrique);
    DStyleProxy style(CreeFusion());
    auto const widget = DonneFabriques()[std::size_t(fabrique)].cree();
    QLineEdit * const champ = PreteChamp(*widget);
    QVERIFY(champ);
    QMargins const avant = champ->textMargins();

    MetsStyle(*widget, &style);
    QCOMPARE(champ->textMargins(), avant + kMarge);
    style.polish(champ); // once only
    QCOMPARE(champ->textMargins(), avant + kMarge);
    style.unpolish(champ);
    QCOMPARE(champ->textMargins(), avant);
    style.unpolish(champ);
    QCOMPARE(champ->textMargins(), avant);
    style.polish(champ);
    QCOMPARE(champ->textMargins(), avant + kMarge);

    MetsStyle(*widget, nullptr);
    QCOMPARE(champ->textMargins(), avant);
}

void tst_DStyleProxyMargeTexte::ajouteeALaSienne()
{
    DStyleProxy style(CreeFusion());
    QLineEdit champ;
    champ.setTextMargins(1, 2, 3, 5);
    MetsStyle(champ, &style);
    QCOMPARE(champ.textMargins(), QMargins(5, 2, 3, 5));
    MetsStyle(champ, nullptr);
    QCOMPARE(champ.textMargins(), QMargins(1, 2, 3, 5));
}

// What it sets later is meant as it is, and not to be made less.
void tst_DStyleProxyMargeTexte::margesDeLApplication()
{
    DStyleProxy style(CreeFusion());
    QLineEdit champ;
    MetsStyle(champ, &style);
    champ.setTextMargins(7, 2, 3, 5);
    style.polish(&champ);
    QCOMPARE(champ.textMargins(), QMargins(7, 2, 3, 5));
    style.unpolish(&champ);
    QCOMPARE(champ.textMargins(), QMargins(7, 2, 3, 5));

    style.polish(&champ); // as a new field with margins
    QCOMPARE(champ.textMargins(), QMargins(11, 2, 3, 5));
    MetsStyle(champ, nullptr);
    QCOMPARE(champ.textMargins(), QMargins(7, 2, 3, 5));
}

void tst_DStyleProxyMargeTexte::margesDeLApplicationGardees()
{
    DStyleProxy style(CreeFusion());
    QLineEdit champ;
    MetsStyle(champ, &style);
    champ.setTextMargins(QMargins());
    MetsStyle(champ, nullptr);
    QCOMPARE(champ.textMargins(), QMargins());
}

void tst_DStyleProxyMargeTexte::autreStyle()
{
    DStyleProxy style(CreeFusion());
    DStyleProxy deuxieme(CreeFusion());
    std::unique_ptr<QStyle> const ordinaire(CreeFusion());
    QLineEdit champ;
    for (int tour = 0; tour < 2; ++tour) {
        MetsStyle(champ, &style);
        QCOMPARE(champ.textMargins(), kMarge);
        MetsStyle(champ, &deuxieme);
        QCOMPARE(champ.textMargins(), kMarge);
        MetsStyle(champ, ordinaire.get());
        QCOMPARE(champ.textMargins(), QMargins());
    }
    MetsStyle(champ, nullptr);
}

void tst_DStyleProxyMargeTexte::styleDeLApplication()
{
    QLineEdit champ;
    champ.ensurePolished();
    QComboBox combo;
    combo.setEditable(true);
    combo.ensurePolished();
    combo.lineEdit()->ensurePolished();
    for (int tour = 0; tour < 2; ++tour) {
        QApplication::setStyle(new DStyleProxy(CreeFusion()));
        QCOMPARE(champ.textMargins(), kMarge);
        QCOMPARE(combo.lineEdit()->textMargins(), kMarge);
    }
    QApplication::setStyle(CreeFusion());
    QCOMPARE(champ.textMargins(), QMargins());
    QCOMPARE(combo.lineEdit()->textMargins(), QMargins());
}

void tst_DStyleProxyMargeTexte::feuilleDeStyle()
{
    DStyleProxy style(CreeFusion());
    QLineEdit champ;
    MetsStyle(champ, &style);
    for (int tour = 0; tour < 2; ++tour) {
        champ.setStyleSheet(u"color: blue;"_s);
        QCOMPARE(champ.textMargins(), kMarge);
        champ.setStyleSheet({});
        QCOMPARE(champ.textMargins(), kMarge);
    }
    MetsStyle(champ, nullptr);
    QCOMPARE(champ.textMargins(), QMargins());
}

void tst_DStyleProxyMargeTexte::autresWidgets()
{
    DStyleProxy style(CreeFusion());
    QWidget widget;
    widget.setContentsMargins(1, 2, 3, 5);
    MetsStyle(widget, &style);
    QCOMPARE(widget.contentsMargins(), QMargins(1, 2, 3, 5));
    QVERIFY(widget.dynamicPropertyNames().isEmpty());
    MetsStyle(widget, nullptr);
    QCOMPARE(widget.contentsMargins(), QMargins(1, 2, 3, 5));
}

void tst_DStyleProxyMargeTexte::premiereLettreEntiere_data()
{
    ajouteeEtOtee_data();
}

// The letters are those that Fusion draws by itself, all of them: also a "j", which reaches out to
// the left.
void tst_DStyleProxyMargeTexte::premiereLettreEntiere()
{
    QFETCH(int, fabrique);
    DStyleProxy style(CreeFusion());
    std::unique_ptr<QStyle> const ordinaire(CreeFusion());
    auto const widget = DonneFabriques()[std::size_t(fabrique)].cree();

    QImage const attendues = DonneLettres(*widget, *ordinaire);

    QVERIFY(!attendues.isNull());
    QCOMPARE(DonneLettres(*widget, style), attendues);
}

int main(int nombre, char ** arguments)
{
    QApplication const application(nombre, arguments);
    QApplication::setStyle(CreeFusion()); // whatever the desktop has
    tst_DStyleProxyMargeTexte test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "tst_DStyleProxyMargeTexte.moc"
