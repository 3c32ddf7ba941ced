// controls/DLabelElision.cpp
#include "controls/DLabelElision.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QResizeEvent>
#include <QTextBlock>
#include <QTextBoundaryFinder>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace {

void MetsTexteDansLayout(QTextLayout & layout, QString const & texte, bool riche)
{
    layout.clearFormats();
    if (!riche) {
        layout.setText(texte);
        return;
    }
    // One for all labels: making one costs more than the parsing. It may outlive the application,
    // which takes the engines from all fonts when it goes.
    static QTextDocument document;
    document.setHtml(texte);
    QTextBlock const bloc = document.firstBlock();
    layout.setText(bloc.text());
    layout.setFormats(bloc.textFormats());
}

} // namespace

DLabelElision::DLabelElision(QString const & texte, QWidget * parent)
    : DLabelElision(parent)
{
    PrendsTexte(texte);
}

DLabelElision::DLabelElision(QWidget * parent)
    : QWidget(parent)
{
    // A single word that does not fit is cut too, which word wrap would leave whole.
    monOption.setWrapMode(QTextOption::WrapAnywhere);
    monLayout.setFont(font());
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void DLabelElision::PrendsTexte(QString const & texte, bool force)
{
    if (!force && monTexteSource == texte)
        return;
    QString const ancienTexte = DonneTexte();
    monTexteSource = texte;
    MetsTexteDansLayout(monLayout, texte, Qt::mightBeRichText(texte));
    maLargeurPleine = -1.0;
    DemandeAjustement();
    updateGeometry();
    if (accessibleName() == ancienTexte)
        setAccessibleName(DonneTexte());
}

QString DLabelElision::DonneTexte() const
{
    return monLayout.text();
}

QString DLabelElision::DonneTexteAvecElision(int largeur) const
{
    if (!EstEliday())
        return DonneTexte();
    // Deliberate: the characters are those of the text as it was given, its mark-up included.
    QString const source = monTexteSource;
    QFontMetrics const mesures(monLayout.font());
    int reste = largeur - maLargeurEllipse;
    QTextBoundaryFinder limites(QTextBoundaryFinder::Grapheme, source);
    qsizetype fin = 0;
    for (qsizetype suivante = limites.toNextBoundary(); suivante > 0;
         suivante = limites.toNextBoundary()) {
        reste -= mesures.horizontalAdvance(source.sliced(fin, suivante - fin));
        if (reste < 0)
            break;
        fin = suivante;
    }
    return source.first(fin) + "..."_L1;
}

void DLabelElision::PrendsModeElision(Elision mode)
{
    if (mode == monModeElision)
        return;
    monModeElision = mode;
    DemandeAjustement();
}

DLabelElision::Elision DLabelElision::DonneModeElision() const
{
    return monModeElision;
}

bool DLabelElision::EstEliday() const
{
    AjusteSiDu();
    return monElision;
}

void DLabelElision::PrendsAlignement(QFlags<Qt::AlignmentFlag> alignement)
{
    if (monOption.alignment() == alignement)
        return;
    monOption.setAlignment(alignement);
    DemandeAjustement();
}

QFlags<Qt::AlignmentFlag> DLabelElision::DonneAlignement() const
{
    return monOption.alignment();
}

void DLabelElision::PrendsPolice(QFont const & police)
{
    setFont(police);
    monLayout.setFont(police); // also where the widget has the rest of its font from its parent
    maLargeurPleine = -1.0;
    DemandeAjustement();
}

QFont DLabelElision::DonnePolice() const
{
    return monLayout.font();
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
void DLabelElision::PrendsCouleurBase(QColor couleur)
{
    maCouleurBase = couleur;
    update();
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
void DLabelElision::PrendsPalette(QPalette palette)
{
    setPalette(palette);
}

void DLabelElision::PrendsCouleurFondElipse(QColor const & couleur)
{
    maCouleurFondElipse = couleur;
    update();
}

QColor DLabelElision::DonneCouleurFondElipse()
{
    return maCouleurFondElipse;
}

int DLabelElision::DonneLongueurLigne() const
{
    AjusteSiDu();
    return monElision ? maLargeurTexte + maLargeurEllipse : maLargeurTexte;
}

void DLabelElision::AjusteElision(QSize const & taille)
{
    if (!taille.isValid())
        return;
    // A delegate asks for the same at each painting.
    if (AjustementEstDu() || taille.width() != maLargeurDisponible)
        DisposeTexte(taille);
    update();
}

void DLabelElision::render(QPainter * peintre, QPoint const & position, QRegion const &,
                           QFlags<QWidget::RenderFlag>)
{
    if (!peintre)
        return;
    if (!testAttribute(Qt::WA_Resized)) {
        setAttribute(Qt::WA_Resized);
        QResizeEvent evenement(size(), QSize());
        QCoreApplication::sendEvent(this, &evenement);
    }
    AjusteSiDu();

    peintre->save();
    peintre->translate(position);
    peintre->setFont(monLayout.font());
    if (maCouleurBase.isValid())
        peintre->setPen(maCouleurBase);
    // The last line is the one to be seen: where the beginning is dropped, it is the first one.
    QTextLine const ligne = monLayout.lineAt(monLayout.lineCount() - 1);
    if (monElision)
        DessineEllipse(*peintre, ligne);
    if (maLargeurTexte > 0)
        ligne.draw(peintre, QPointF());
    peintre->restore();
}

QSize DLabelElision::sizeHint() const
{
    return {DonneLargeurTexte(), QFontMetrics(monLayout.font()).height()};
}

QSize DLabelElision::minimumSizeHint() const
{
    return {-1, QFontMetrics(monLayout.font()).height()};
}

void DLabelElision::resizeEvent(QResizeEvent * evenement)
{
    QWidget::resizeEvent(evenement);
    if (evenement->size() != maTailleVue)
        monAjustementDu = true;
}

void DLabelElision::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    render(&peintre);
}

void DLabelElision::changeEvent(QEvent * evenement)
{
    QWidget::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange) {
        monLayout.setFont(font());
        maLargeurPleine = -1.0;
        updateGeometry();
        DemandeAjustement();
    } else if (evenement->type() == QEvent::LayoutDirectionChange) {
        DemandeAjustement();
    }
}

bool DLabelElision::AjustementEstDu() const
{
    // A widget that is not shown gets no event when it is resized.
    return monAjustementDu || size() != maTailleVue;
}

void DLabelElision::DemandeAjustement()
{
    monAjustementDu = true;
    update();
}

void DLabelElision::AjusteSiDu() const
{
    if (AjustementEstDu())
        DisposeTexte(size());
}
