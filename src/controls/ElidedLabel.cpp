// controls/ElidedLabel.cpp
#include "controls/ElidedLabel.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QTextOption>

ElidedLabel::ElidedLabel(QString const & texte, QWidget * parent)
    : QFrame(parent)
    , monContenu(texte)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setAccessibleName(texte);
}

void ElidedLabel::setText(QString const & texte)
{
    if (accessibleName() == monContenu)
        setAccessibleName(texte);
    monContenu = texte;
    update();
}

QString ElidedLabel::text() const
{
    return monContenu;
}

bool ElidedLabel::isElided() const
{
    return monElision;
}

void ElidedLabel::paintEvent(QPaintEvent * evenement)
{
    QFrame::paintEvent(evenement);
    QPainter peintre(this);
    bool const elision = DessineTexte(peintre);
    peintre.end();
    if (elision == monElision)
        return;
    monElision = elision;
    Q_EMIT elisionChanged(elision);
}

// Draws the lines that fit; true when the last of them is elided.
bool ElidedLabel::DessineTexte(QPainter & peintre) const
{
    QFontMetrics const mesures = peintre.fontMetrics();
    Qt::Alignment const alignement = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    QString texte = monContenu;
    texte.replace(QChar::LineFeed, QChar::LineSeparator);
    QTextLayout layout(texte, peintre.font());
    layout.setTextOption(QTextOption(alignement));
    // As a layout does: the text tells its direction, and with it the side of the ellipsis.
    peintre.setLayoutDirection(Qt::LayoutDirectionAuto);
    layout.beginLayout();
    // Deliberate: the room is that of the widget, whatever frame and margins it has.
    bool elision = false;
    for (int haut = 0;; haut += mesures.lineSpacing()) {
        QTextLine ligne = layout.createLine();
        if (!ligne.isValid())
            break;
        ligne.setLineWidth(width());
        if (haut + 2 * mesures.lineSpacing() <= height()) {
            ligne.draw(&peintre, QPointF(0, haut));
            continue;
        }
        QString reste = texte.sliced(ligne.textStart());
        reste.replace(QChar::LineSeparator, u' ');
        QString const derniere = mesures.elidedText(reste, Qt::ElideRight, width());
        elision = derniere != reste;
        int const gauche =
            alignement & Qt::AlignRight ? width() - mesures.horizontalAdvance(derniere) : 0;
        peintre.drawText(QPointF(gauche, haut + mesures.ascent()), derniere);
        break;
    }
    layout.endLayout();
    return elision;
}
