// bench/bench_DLabelElision.cpp
//
// The painting of an elided label, beside a widget that draws what `QFontMetrics::elidedText`
// gives: 10,000 paintings of the same text, then with another text or another width for each. Exits
// with 1 when the label takes more than 1.2 times as long for the same text.
#include "controls/DLabelElision.h"

#include "Comparaison.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPeintures = 10'000;
constexpr int kToursParMesure = 51; // of `Comparaison`, which takes the median of them
constexpr double kRatioMax = 1.2;
constexpr QSize kTaille(160, 24);

// As a QLabel does it whose text is elided by hand.
class LabelElidedText : public QWidget
{
public:
    QString monTexte;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter peintre(this);
        QString const texte = fontMetrics().elidedText(monTexte, Qt::ElideRight, width());
        peintre.drawText(rect(), Qt::AlignLeft | Qt::AlignTop, texte);
    }
};

// The two texts differ in their first letter alone.
QString DonneTexte(int tour)
{
    return (tour % 2 ? u"Un"_s : u"un"_s) + u" texte bien trop long pour la place qu'il a ici"_s;
}

int DonneLargeur(int tour)
{
    return kTaille.width() - tour % 2;
}

} // namespace

int main(int nombre, char ** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication const application(nombre, arguments);
    DLabelElision label(DonneTexte(0), nullptr);
    LabelElidedText pair;
    pair.monTexte = DonneTexte(0);
    QImage image(kTaille, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    auto const peins = [&](QWidget & widget) {
        widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    };
    label.resize(kTaille);
    pair.resize(kTaille);
    Comparaison comparaison(kPeintures / kToursParMesure);

    auto const memeTexte = [&](QWidget & widget) {
        return [&](int repetitions) {
            for (int i = 0; i < repetitions; ++i)
                peins(widget);
        };
    };
    comparaison.Mesure("same text, elided", memeTexte(label), memeTexte(pair), kRatioMax);

    comparaison.Mesure(
        "another text each time, elided",
        [&](int repetitions) {
            for (int i = 0; i < repetitions; ++i) {
                label.PrendsTexte(DonneTexte(i));
                peins(label);
            }
        },
        [&](int repetitions) {
            for (int i = 0; i < repetitions; ++i) {
                pair.monTexte = DonneTexte(i);
                peins(pair);
            }
        },
        0.0);

    comparaison.Mesure(
        "another width each time, elided",
        [&](int repetitions) {
            for (int i = 0; i < repetitions; ++i) {
                label.resize(DonneLargeur(i), kTaille.height());
                peins(label);
            }
        },
        [&](int repetitions) {
            for (int i = 0; i < repetitions; ++i) {
                pair.resize(DonneLargeur(i), kTaille.height());
                peins(pair);
            }
        },
        0.0);

    pair.monTexte = u"un texte court"_s;
    label.PrendsTexte(pair.monTexte);
    comparaison.Mesure("same text, which fits", memeTexte(label), memeTexte(pair), kRatioMax);
    return comparaison.Resultat();
}
