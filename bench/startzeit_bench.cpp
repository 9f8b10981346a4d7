#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <benchmark/benchmark.h>
#include <chrono>

namespace {

/// Starts the program with a command line and reads its log until the main window has been painted.
bool bis_zum_bild(QProcess& programm, const QString& befehl) {
    constexpr int geduld = 20'000;
    programm.start(QStringLiteral(VELMARIS_PROGRAMM), {befehl});
    while (programm.waitForReadyRead(geduld)) {
        while (programm.canReadLine()) {
            const QByteArray zeile = programm.readLine();
            if (zeile.contains("Flushing") && zeile.contains("Hauptfenster")) return true;
        }
    }
    return false;
}

/// From the start of the process with a language letter to the painted main window, with all that is
/// installed beside the program. The toolkit's own log of its painting tells the moment.
void Prozessstart_bis_Hauptfenster(benchmark::State& zustand) {
    QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
    umgebung.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("qt.widgets.painting=true"));
    umgebung.insert(QStringLiteral("QT_LOGGING_TO_CONSOLE"), QStringLiteral("1"));
    if (!umgebung.contains(QStringLiteral("QT_QPA_PLATFORM")))
        umgebung.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    for ([[maybe_unused]] auto _ : zustand) {
        QProcess programm;
        programm.setProcessEnvironment(umgebung);
        programm.setProcessChannelMode(QProcess::MergedChannels);
        const auto anfang = std::chrono::steady_clock::now();
        if (!bis_zum_bild(programm, QStringLiteral("d"))) zustand.SkipWithError("no main window came up");
        const std::chrono::duration<double> dauer = std::chrono::steady_clock::now() - anfang;
        zustand.SetIterationTime(dauer.count());
        programm.kill();
        programm.waitForFinished();
    }
}
BENCHMARK(Prozessstart_bis_Hauptfenster)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    const QCoreApplication anwendung(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
