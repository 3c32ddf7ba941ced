// galerie/ChargementMots.h
#pragma once

#include "LectureTexte.h"

#include <QObject>

#include <memory>
#include <optional>
#include <thread>

class TableMots;

/// Reads a list of words in a thread of its own, which begins at once.
///
/// The object may go before the end; it then waits for the thread, some hundredths of a second.
class ChargementMots : public QObject
{
    Q_OBJECT

public:
    explicit ChargementMots(QString const & fichier, QObject * parent = nullptr);
    ~ChargementMots() override;

    /// Null until the signal; then never, but without words when the file could not be read.
    std::shared_ptr<TableMots const> DonneTable() const { return maTable; }
    /// What reading it led to, from the signal on.
    std::optional<LectureTexte> const & DonneLecture() const { return maLecture; }

Q_SIGNALS:
    /// Once, from the event loop of the thread that made the object.
    void SignalTermine();

private:
    void Charge(QString const & fichier);

    std::shared_ptr<TableMots const> maTable;
    std::optional<LectureTexte> maLecture;
    std::thread monFil;
};
