// tests/foundation/chargement_autre_thread.cpp
//
// Loads the library named by its argument on a second thread, and tells what the threads see.
#include <QFile>
#include <QLibrary>

#include <cstdio>
#include <thread>

namespace {

void DisRessources(char const * quand)
{
    bool const presentes = QFile::exists(QStringLiteral(":/Style/StyleGeneralGui.qss"));
    std::printf("%s: %s\n", quand, presentes ? "resources" : "no resources");
}

} // namespace

int main(int argc, char ** argv)
{
    if (argc != 2)
        return 2;
    DisRessources("before loading");
    QLibrary bibliotheque(QString::fromLocal8Bit(argv[1]));
    bool (*estThreadGraphique)() = nullptr;
    bool surLAutre = false;
    std::thread([&] {
        // The name of RoutinesGeneralesQt::EstThreadGraphique() in the C++ ABI of ELF systems.
        estThreadGraphique = reinterpret_cast<bool (*)()>(
            bibliotheque.resolve("_ZN19RoutinesGeneralesQt18EstThreadGraphiqueEv"));
        surLAutre = estThreadGraphique && estThreadGraphique();
    }).join();
    if (!estThreadGraphique) {
        std::fprintf(stderr, "%s\n", qPrintable(bibliotheque.errorString()));
        return 1;
    }
    std::printf("loading thread: %s\n", surLAutre ? "true" : "false");
    std::printf("main thread: %s\n", estThreadGraphique() ? "true" : "false");
    DisRessources("loaded");
    if (!bibliotheque.unload())
        return 1;
    DisRessources("unloaded");
    return 0;
}
