// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/monkey/Mono.h"

#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/FormLeccion.h"
#include "tests/Procesador.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTest>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Numbers that have hurt, and ordinary ones.
const QStringList &textos()
{
    static const QStringList lista{u""_s,
                                   u" "_s,
                                   u"0"_s,
                                   u"-1"_s,
                                   u"7"_s,
                                   u"1/2"_s,
                                   u"abc"_s,
                                   u"mod 5"_s,
                                   u"(((("_s,
                                   u"900000011"_s,
                                   u"10000000019"_s,
                                   u"12*9999999999971"_s,
                                   u"2^67-1"_s,
                                   u"10^300"_s,
                                   u"9^9^9^9"_s,
                                   u"-922337203685477"_s,
                                   u"196"_s,
                                   u"27"_s,
                                   u"1000000"_s,
                                   u"A1+B2"_s,
                                   u"1,5"_s,
                                   u"ñandú € \u4e2d"_s};
    return lista;
}

/// Buttons that lead out of the program, or whose work lasts by design.
bool esPulsable(const QAbstractButton *boton)
{
    return boton->isEnabled() && !boton->objectName().startsWith(u"qt_"_s);
}

} // namespace

Mono::Mono(const Contenido &contenido, unsigned semilla)
    : m_principal(std::make_unique<FormPrincipal>(contenido)),
      m_filas(static_cast<int>(contenido.lecciones.size())),
      m_azar(semilla)
{
    m_principal->resize(1366, 768);
    m_principal->show();
    QObject::connect(&m_menus, &QTimer::timeout, &m_menus, [] {
        if (QWidget *menu = QApplication::activePopupWidget())
            menu->close();
    });
    m_menus.start(500);
}

Mono::~Mono() = default;

int Mono::numero(int limite)
{
    return static_cast<int>(m_azar() % static_cast<unsigned>(limite));
}

void Mono::anota(const QString &acto)
{
    m_diario << acto;
    if (m_diario.size() > 40)
        m_diario.removeFirst();
}

template <typename Control>
Control *Mono::alguno(QWidget *donde)
{
    QList<Control *> visibles;
    for (Control *control : donde->findChildren<Control *>()) {
        if (control->isVisible())
            visibles << control;
    }
    return visibles.isEmpty() ? nullptr : visibles[numero(static_cast<int>(visibles.size()))];
}

QString Mono::actua()
{
    ++m_cuenta.actos;
    if (QWidget *menu = QApplication::activePopupWidget()) {
        anota(u"Escape in a menu"_s);
        QTest::keyClick(menu, Qt::Key_Escape);
    } else if (QWidget *caja = QApplication::activeModalWidget()) {
        respondeCaja(caja);
    } else {
        using Acto = void (Mono::*)();
        static constexpr Acto actos[] = {
            &Mono::abreVentana, &Mono::cambiaTema, &Mono::cambiaTema,    &Mono::pulsaBoton,
            &Mono::pulsaBoton,  &Mono::pulsaBoton, &Mono::escribe,       &Mono::escribe,
            &Mono::tecla,       &Mono::arrastra,   &Mono::cambiaAspecto, &Mono::cierraVentana,
            &Mono::cambiaTamano};
        (this->*actos[numero(static_cast<int>(std::size(actos)))])();
    }
    deja(numero(4) == 0 ? numero(60) : 0);
    return quéFalla();
}

void Mono::respondeCaja(QWidget *caja)
{
    // The dialogs that are Qt's own execute others inside: they are closed and no more.
    auto *boton = qobject_cast<QMessageBox *>(caja) ? alguno<QAbstractButton>(caja) : nullptr;
    if (boton && esPulsable(boton) && numero(3) > 0) {
        anota(u"answers \"%1\" in \"%2\""_s.arg(boton->text(), caja->windowTitle()));
        QTest::mouseClick(boton, Qt::LeftButton);
    } else {
        anota(u"closes the box \"%1\""_s.arg(caja->windowTitle()));
        caja->close();
    }
}

void Mono::abreVentana()
{
    const int fila = numero(m_filas + 1) - 1;
    anota(u"opens %1"_s.arg(fila));
    vigila(m_principal->abreLeccion(fila));
}

/// A window is counted once, and each run that begins in it; once closed it may have none.
void Mono::vigila(FormLeccion *leccion)
{
    m_abiertas.removeAll(nullptr);
    if (m_abiertas.contains(leccion))
        return;
    m_abiertas << leccion;
    ++m_cuenta.ventanas;
    QObject::connect(leccion, &FormLeccion::descargada, leccion,
                     [this, leccion] { m_cerradas << leccion; });
    for (const auto *corrida : leccion->findChildren<BotonDeCorrida *>())
        QObject::connect(corrida, &BotonDeCorrida::empezada, leccion,
                         [this] { ++m_cuenta.corridas; });
}

void Mono::cambiaTema()
{
    auto *tira = alguno<QTabBar>(m_principal.get());
    if (!tira || tira->count() == 0)
        return abreVentana();
    const int tema = numero(tira->count());
    anota(u"topic \"%1\""_s.arg(tira->tabText(tema)));
    QTest::mouseClick(tira, Qt::LeftButton, {}, tira->tabRect(tema).center());
}

void Mono::pulsaBoton()
{
    QWidget *donde = m_principal->leccionActiva();
    auto *boton = alguno<QAbstractButton>(donde ? donde : m_principal.get());
    if (!boton || !esPulsable(boton))
        return;
    anota(u"presses %1 \"%2\""_s.arg(boton->objectName(), boton->toolTip()));
    QTest::mouseClick(boton, Qt::LeftButton);
    // What is closed right behind the click that starts a run has hurt before.
    if (numero(8) == 0) {
        cierraVentana();
    } else if (numero(4) == 0 && QApplication::activeModalWidget() == nullptr) {
        anota(u"and again"_s);
        QTest::mouseClick(boton, Qt::LeftButton);
    }
}

void Mono::escribe()
{
    const QString texto = textos()[numero(static_cast<int>(textos().size()))];
    QWidget *campo = alguno<QLineEdit>(m_principal.get());
    if (!campo || numero(4) == 0)
        campo = alguno<QPlainTextEdit>(m_principal.get());
    if (!campo || !campo->isEnabled())
        return;
    anota(u"types \"%1\" into %2"_s.arg(texto, campo->objectName()));
    campo->setFocus();
    const bool entrega = numero(2) == 0;
    // A box may come up in the midst of it; what is typed then goes to the box.
    const QPointer<QWidget> vivo = campo;
    QTest::keyClick(campo, Qt::Key_A, Qt::ControlModifier);
    for (const QChar letra : texto) {
        if (vivo && !QApplication::activeModalWidget())
            QTest::sendKeyEvent(QTest::Click, campo, Qt::Key_unknown, QString(letra), {});
    }
    if (entrega && vivo && !QApplication::activeModalWidget())
        QTest::keyClick(campo, Qt::Key_Return);
}

void Mono::tecla()
{
    static constexpr Qt::Key teclas[] = {
        Qt::Key_Escape, Qt::Key_Tab,   Qt::Key_Return, Qt::Key_Left, Qt::Key_Right, Qt::Key_Down,
        Qt::Key_F6,     Qt::Key_Space, Qt::Key_Delete, Qt::Key_C,    Qt::Key_V,     Qt::Key_Z};
    const Qt::Key cual = teclas[numero(static_cast<int>(std::size(teclas)))];
    const bool letra = cual >= Qt::Key_A && cual <= Qt::Key_Z;
    QWidget *donde = QApplication::focusWidget();
    anota(u"key %1"_s.arg(QKeySequence(cual).toString()));
    QTest::keyClick(donde ? donde : m_principal.get(), cual,
                    letra ? Qt::ControlModifier : Qt::NoModifier);
}

void Mono::arrastra()
{
    QWidget *donde = m_principal->leccionActiva();
    if (!donde)
        return;
    auto *blanco = alguno<QWidget>(donde);
    if (!blanco || blanco->width() < 4 || blanco->height() < 4)
        return;
    const auto punto = [&] { return QPoint(numero(blanco->width()), numero(blanco->height())); };
    anota(u"drags over %1 %2"_s.arg(QString::fromLatin1(blanco->metaObject()->className()),
                                    blanco->objectName()));
    QPointer<QWidget> vivo = blanco;
    QTest::mousePress(blanco, Qt::LeftButton, {}, punto());
    for (int i = 0; i < 3 && vivo; ++i)
        QTest::mouseMove(blanco, punto());
    if (vivo)
        QTest::mouseRelease(blanco, Qt::LeftButton, {}, punto());
    if (vivo && numero(3) == 0)
        QTest::mouseDClick(blanco, Qt::LeftButton, {}, punto());
}

void Mono::cambiaAspecto()
{
    static const QStringList ordenes{u"mnuTemaOscuro"_s, u"mnuTemaClaro"_s};
    auto *orden = m_principal->findChild<QAction *>(ordenes[numero(2)]);
    if (orden) {
        anota(orden->objectName());
        orden->trigger();
    }
}

void Mono::cierraVentana()
{
    if (FormLeccion *leccion = m_principal->leccionActiva()) {
        anota(u"closes %1"_s.arg(leccion->objectName()));
        leccion->cierra();
    }
}

void Mono::cambiaTamano()
{
    anota(u"resizes"_s);
    m_principal->resize(800 + numero(800), 500 + numero(500));
}

void Mono::deja(int milisegundos)
{
    QElapsedTimer reloj;
    reloj.start();
    do {
        QApplication::processEvents(QEventLoop::AllEvents, 5);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    } while (reloj.elapsed() < milisegundos);
}

QString Mono::quéFalla() const
{
    const QWidget *caja = QApplication::activeModalWidget();
    if (caja && caja->parentWidget() && !caja->parentWidget()->window()->isVisible())
        return u"the box \"%1\" stands over nothing"_s.arg(caja->windowTitle());
    for (const auto &cerrada : m_cerradas) {
        const auto corridas =
            cerrada ? cerrada->findChildren<BotonDeCorrida *>() : QList<BotonDeCorrida *>();
        if (std::ranges::any_of(corridas, &BotonDeCorrida::enMarcha))
            return u"a run goes on in %1, which was closed"_s.arg(cerrada->objectName());
    }
    return {};
}

QString Mono::recoge()
{
    for (int i = 0; i < 200; ++i) {
        if (QWidget *caja = QApplication::activeModalWidget())
            respondeCaja(caja);
        else if (m_principal->leccionActiva())
            cierraVentana();
        else
            break;
        deja(5);
    }
    for (const auto *leccion : m_principal->findChildren<FormLeccion *>())
        return u"%1 is still there after it was closed"_s.arg(
            QString::fromLatin1(leccion->metaObject()->className()));
    // With every window gone the program has nothing to do: what still computes has no owner.
    deja(100);
    const double antes = segundosDeProcesador();
    QTest::qWait(300);
    const double gastado = segundosDeProcesador() - antes;
    return gastado > 0.15 ? u"something computes on after all windows are closed"_s : QString();
}
