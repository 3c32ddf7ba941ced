// galerie/ApercuFenetre.cpp
#include "ApercuFenetre.h"

#include <QEvent>
#include <QPainter>

#include <utility>

ApercuFenetre::ApercuFenetre(QString const & nom, QWidget & fenetre, std::function<QSize()> mesure,
                             QWidget * parent)
    : QWidget(parent)
    , maFenetre(&fenetre)
    , maMesure(std::move(mesure))
{
    setAccessibleName(nom);
    Actualise();
    DemandeImage();
    fenetre.installEventFilter(this);
}

void ApercuFenetre::Actualise()
{
    monAttente = false;
    if (!maFenetre)
        return;
    AjusteFenetre();
    monImage = maFenetre->grab();
    setFixedSize(monImage.deviceIndependentSize().toSize());
    update();
}

bool ApercuFenetre::eventFilter(QObject * objet, QEvent * evenement)
{
    if (objet == maFenetre && evenement->type() == QEvent::Hide)
        DemandeImage();
    return QWidget::eventFilter(objet, evenement);
}

void ApercuFenetre::changeEvent(QEvent * evenement)
{
    QWidget::changeEvent(evenement);
    switch (evenement->type()) {
    case QEvent::FontChange:
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        DemandeImage();
        break;
    default:
        break;
    }
}

void ApercuFenetre::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.drawPixmap(0, 0, monImage);
}

// Later: the window is still on its way, or has yet to hear of the change.
void ApercuFenetre::DemandeImage()
{
    if (!std::exchange(monAttente, true))
        QMetaObject::invokeMethod(this, &ApercuFenetre::Actualise, Qt::QueuedConnection);
}

void ApercuFenetre::AjusteFenetre()
{
    if (maFenetre->isVisible())
        return;
    if (maMesure)
        maFenetre->resize(maMesure());
    else
        maFenetre->adjustSize();
}
