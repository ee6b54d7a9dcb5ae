// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/shell/Clics.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/controls/CampoLargo.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/FormLeccion.h"
#include "shell/start/FormPrincipal.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTabBar>
#include <QTextStream>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Reloj = std::chrono::steady_clock;

using Campos = QList<std::pair<QString, QString>>;

/// A row of the list of attacks, and one of the list of keys.
Campos ataque(int cual, int clave)
{
    return {{u"cmbAtaque"_s, QString::number(cual)}, {u"cmbVictima"_s, QString::number(clave)}};
}

/// An own key whose primes have so many bits.
Campos clavePropia(std::int16_t bits)
{
    return {{u"txtQ_1"_s, PrimoAleatorio(bits) + u'\n'},
            {u"txtQ_2"_s, PrimoAleatorio(bits) + u'\n'},
            {u"txtS"_s, u"65537\n"_s}};
}

/// A run: where it is, what is written and chosen before, and what starts it.
struct Carrera
{
    const char *nombre;
    int fila;
    int tema;
    /// A button where the text is empty, a row of a list; with Enter where it ends in a line break.
    Campos campos;
    QString boton; ///< empty for the spreadsheet, into which is pasted
};

QList<Carrera> carreras()
{
    const QString primo = u"900000000000019"_s;
    const QString largo = u"2718281828459045"_s.repeated(125);
    return {
        {"Fibonacci by its definition", 0, 1, {{u"TxtN"_s, u"50"_s}}, u"cmdCalcular"_s},
        {"Fibonacci by additions",
         0,
         1,
         {{u"optMetodo_1"_s, {}}, {u"TxtN"_s, u"117592"_s}},
         u"cmdCalcular"_s},
        {"sieve of the lesson to 10^8", 2, 1, {{u"txtMaxPrimo"_s, u"100000000"_s}}, u"BtnCriba"_s},
        {"list of the library to 10^8",
         2,
         1,
         {{u"optTipoCriba_1"_s, {}}, {u"txtMaxPrimo"_s, u"100000000"_s}},
         u"BtnCriba"_s},
        {"naive trial division",
         2,
         3,
         {{u"OptAlgoritmo_0"_s, {}}, {u"TxtN"_s, u"900000011"_s}},
         u"BtnFactoriza"_s},
        {"improved trial division",
         2,
         3,
         {{u"OptAlgoritmo_1"_s, {}}, {u"TxtN"_s, primo}},
         u"BtnFactoriza"_s},
        {"attack by division, 129 digits", 4, 1, ataque(1, 4), u"cmdAtacar"_s},
        {"attack by squares, 129 digits", 4, 1, ataque(2, 4), u"cmdAtacar"_s},
        {"attack by a table, key of 1978", 4, 1, ataque(0, 1), u"cmdAtacar"_s},
        {"attack by division, 40 digits", 4, 1, clavePropia(66) + ataque(1, 0), u"cmdAtacar"_s},
        {"attack by phi, key of 4000 bits", 4, 1, clavePropia(2000) + ataque(4, 0), u"cmdAtacar"_s},
        {"measuring the three ways", 6, 1, {{u"TxtHasta"_s, u"45"_s}}, u"cmdMedir"_s},
        {"Ackermann's function, (4, 2)",
         8,
         1,
         {{u"TxtX"_s, u"4"_s}, {u"TxtY"_s, u"2"_s}},
         u"cmdAck"_s},
        {"hailstone of 2000 digits", 8, 1, {{u"TxtInicial"_s, largo}}, u"cmdHail"_s},
        {"palindrome of 196", 8, 1, {{u"TxtCapInicial"_s, u"196"_s}}, u"cmdCap"_s},
        {"pasting 800 cells", FormPrincipal::FilaHojaDeCalculo, 0, {}, {}},
    };
}

/// Takes the clicks that another thread posts on a window and notes how long each has waited.
class Contador : public QObject
{
public:
    explicit Contador(QWidget *ventana) : m_ventana(ventana)
    {
        ventana->installEventFilter(this);
        m_hilo = std::thread([this] { pincha(); });
    }
    ~Contador() override
    {
        m_fin = true;
        m_hilo.join();
        QCoreApplication::removePostedEvents(m_ventana, QEvent::MouseButtonPress);
        m_ventana->removeEventFilter(this);
    }

    bool eventFilter(QObject * /*objeto*/, QEvent *suceso) override
    {
        if (suceso->type() != QEvent::MouseButtonPress)
            return false;
        const auto *clic = static_cast<QMouseEvent *>(suceso);
        const auto espera = ahora() - static_cast<qint64>(clic->timestamp());
        if (m_cuenta)
            m_esperas.push_back(static_cast<double>(espera) / 1e3);
        return true;
    }

    /// Whether what comes now comes during a run.
    void cuenta(bool si) { m_cuenta = si; }

    void imprime(const char *nombre)
    {
        if (m_esperas.empty())
            throw std::runtime_error(nombre);
        std::ranges::sort(m_esperas);
        const auto cuantil = [&](std::size_t centesimas) {
            return m_esperas[std::min(m_esperas.size() - 1, m_esperas.size() * centesimas / 100)];
        };
        QTextStream(stdout) << u"%1 %2 clicks  %3  %4  %5"_s.arg(QLatin1String(nombre), -34)
                                   .arg(m_esperas.size(), 6)
                                   .arg(cuantil(50), 6, 'f', 1)
                                   .arg(cuantil(99), 6, 'f', 1)
                                   .arg(m_esperas.back(), 6, 'f', 1)
                            << Qt::endl;
    }

private:
    static qint64 ahora()
    {
        return std::chrono::duration_cast<std::chrono::microseconds>(
                   Reloj::now().time_since_epoch())
            .count();
    }

    /// Every 7 ms, which is out of step with the yields.
    void pincha()
    {
        while (!m_fin) {
            auto *clic = new QMouseEvent(QEvent::MouseButtonPress, QPointF(1, 1), QPointF(1, 1),
                                         Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            clic->setTimestamp(static_cast<quint64>(ahora()));
            QCoreApplication::postEvent(m_ventana, clic);
            std::this_thread::sleep_for(7ms);
        }
    }

    QWidget *m_ventana;
    std::atomic<bool> m_fin = false;
    bool m_cuenta = false;
    std::vector<double> m_esperas;
    std::thread m_hilo;
};

void escribe(QWidget *campo, const QString &texto)
{
    if (texto.endsWith(u'\n')) {
        escribe(campo, texto.chopped(1));
        QKeyEvent intro(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(campo, &intro);
        return;
    }
    if (auto *boton = qobject_cast<QAbstractButton *>(campo))
        boton->click();
    else if (auto *linea = qobject_cast<QLineEdit *>(campo))
        linea->setText(texto);
    else if (auto *largo = qobject_cast<CampoLargo *>(campo))
        largo->setText(texto);
    else if (auto *lista = qobject_cast<QComboBox *>(campo))
        lista->setCurrentIndex(texto.toInt());
    else
        throw std::runtime_error("no field to write into");
}

/// The control of that name, on the topic in front where there are several.
template <typename Control>
Control *visible(const FormLeccion &leccion, const QString &nombre)
{
    const auto todos = leccion.findChildren<Control *>(nombre);
    if (todos.isEmpty())
        throw std::runtime_error(nombre.toStdString());
    const auto delante = std::ranges::find_if(todos, &QWidget::isVisible);
    return delante == todos.end() ? todos.first() : *delante;
}

bool algunaEnMarcha(const FormLeccion &leccion)
{
    const auto corridas = leccion.findChildren<BotonDeCorrida *>();
    return std::ranges::any_of(corridas, &BotonDeCorrida::enMarcha);
}

void empieza(const FormLeccion &leccion, const Carrera &carrera)
{
    if (carrera.boton.isEmpty())
        QMetaObject::invokeMethod(visible<QWidget>(leccion, u"FlexCalc"_s), "pegar");
    else
        visible<QAbstractButton>(leccion, carrera.boton)->click();
}

/// Serves events while a run is on, and a little longer: some begin behind a first yield.
void sirve(Reloj::time_point fin, const FormLeccion &leccion)
{
    const auto pronto = Reloj::now() + 20ms;
    while (Reloj::now() < std::min(fin, pronto) ||
           (Reloj::now() < fin && algunaEnMarcha(leccion))) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (QWidget *caja = QApplication::activeModalWidget())
            caja->close();
    }
}

void mide(FormLeccion &leccion, const Carrera &carrera)
{
    leccion.findChild<QTabBar *>()->setCurrentIndex(carrera.tema);
    for (const auto &[campo, texto] : carrera.campos)
        escribe(visible<QWidget>(leccion, campo), texto);
    // The window lays itself out and paints before anything is measured.
    const auto quieta = Reloj::now() + 1s;
    while (Reloj::now() < quieta)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    const auto fin = Reloj::now() + 4s;
    Contador contador(&leccion);
    contador.cuenta(true);
    while (Reloj::now() < fin) {
        empieza(leccion, carrera);
        sirve(fin, leccion);
    }
    contador.cuenta(false);
    leccion.detenCorrida();
    contador.imprime(carrera.nombre);
}

} // namespace

void mideClics(FormPrincipal &principal)
{
    const QString fila = u"2^3000+7\t"_s.repeated(19) + u"2^3000+8\n"_s;
    QApplication::clipboard()->setText(fila.repeated(40));
    for (const Carrera &carrera : carreras()) {
        FormLeccion *leccion = principal.abreLeccion(carrera.fila);
        mide(*leccion, carrera);
        leccion->cierraSinPreguntar();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}
