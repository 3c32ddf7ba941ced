// galerie/ApercuFenetre.cpp
#include "ApercuFenetre.h"

#include <QEvent>
#include <QPainter>

ApercuFenetre::ApercuFenetre(QString const & nom, QWidget & fenetre, QWidget * parent)
    : QWidget(parent)
    , maFenetre(&fenetre)
{
    setAccessibleName(nom);
    Actualise();
    fenetre.installEventFilter(this);
}

void ApercuFenetre::Actualise()
{
    if (!maFenetre)
        return;
    monImage = maFenetre->grab();
    setFixedSize(monImage.deviceIndependentSize().toSize());
    update();
}

bool ApercuFenetre::eventFilter(QObject * objet, QEvent * evenement)
{
    // Later: the window is still on its way.
    if (objet == maFenetre && evenement->type() == QEvent::Hide)
        QMetaObject::invokeMethod(this, &ApercuFenetre::Actualise, Qt::QueuedConnection);
    return QWidget::eventFilter(objet, evenement);
}

void ApercuFenetre::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.drawPixmap(0, 0, monImage);
}
