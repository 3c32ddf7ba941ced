// galerie/ChargementMots.cpp
#include "ChargementMots.h"

#include "TableMots.h"

ChargementMots::ChargementMots(QString const & fichier, QObject * parent)
    : QObject(parent)
    , monFil([this, fichier] { Charge(fichier); })
{
}

ChargementMots::~ChargementMots()
{
    monFil.join();
}

void ChargementMots::Charge(QString const & fichier)
{
    LectureTexte lecture(fichier);
    auto table = std::make_shared<TableMots const>(lecture.DonneTexte());
    // Handed over by the event, so that nobody sees the one without the other.
    QMetaObject::invokeMethod(
        this,
        [this, table, lecture] {
            maTable = table;
            maLecture = lecture;
            Q_EMIT SignalTermine();
        },
        Qt::QueuedConnection);
}
