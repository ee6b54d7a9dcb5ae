// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/windows/FormRSAMensajes.h"

#include "lessons/rsa/mailbox/Buzon.h"
#include "lessons/rsa/windows/FormRSAComun.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Interlocutor.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormRSAMensajes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

std::unique_ptr<Ui::FormRSAMensajes> montada(QWidget *panel)
{
    auto ui = std::make_unique<Ui::FormRSAMensajes>();
    ui->setupUi(panel);
    traduceVentana(panel);
    return ui;
}

} // namespace

FormRSAMensajes::FormRSAMensajes(std::shared_ptr<ClsRSA> clave, QWidget *leccion)
    : QWidget(leccion),
      ui(montada(this)),
      m_clave(std::move(clave)),
      m_lista(ui->FlexMensajes, this),
      m_enviar(corridaDe(ui->enviar, u"ENVIAR"_s, Traduce(u"Detener el envío"_s))),
      m_recibir(corridaDe(ui->recibir, u"RECIBIR"_s, Traduce(u"Detener la lectura"_s))),
      m_revisar(corridaDe(ui->revisar, u"REVISAR"_s, Traduce(u"Detener la revisión"_s))),
      m_destinatario(ui->cmbDestinatario, ui->LabelTexto, ui->FlexMensajes, m_clave, this),
      m_redaccion(ui->txtAsunto, ui->txtDestTextoOriginal, m_clave->sesion().carpetaDeAjustes(),
                  this)
{
    Aspecto::destaca(ui->LabelTexto);
    m_lista.ponTextoVacio(Traduce(u"No hay mensajes en el buzón"_s));
    m_timerRevision.setSingleShot(true);
    ui->enviar->installEventFilter(this);
    conectaTodo();
    evento(this, [this] { m_redaccion.recupera(); });
}

FormRSAMensajes::~FormRSAMensajes() = default;

void FormRSAMensajes::conectaTodo()
{
    conecta(&m_lista, &FormRSALista::elegida, this, &FormRSAMensajes::FlexMensajes_Click);
    conecta(&m_lista, &FormRSALista::activada, this, [this] { ui->recibir->click(); });
    conecta(ui->txtAsunto, &QLineEdit::returnPressed, this,
            [this] { ui->txtDestTextoOriginal->setFocus(); });
    conecta(&m_destinatario, &FormRSADestinatario::nombrado, this,
            &FormRSAMensajes::cmbDestinatario_Validate);
    conecta(&m_destinatario, &FormRSADestinatario::cambia, this, &FormRSAMensajes::habilita);
    conecta(&m_redaccion, &FormRSARedaccion::cambiada, this, &FormRSAMensajes::habilita);
    conecta(&m_redaccion, &FormRSARedaccion::avisa, this,
            [this](const QString &aviso) { muestraNeutro(ui->lblEstadoBuzon, aviso); });
    conecta(&m_timerRevision, &QTimer::timeout, this, &FormRSAMensajes::TimerRevision_Timer);
    for (const BotonDeCorrida *corrida : {m_enviar, m_recibir, m_revisar}) {
        conecta(corrida, &BotonDeCorrida::empezada, this, &FormRSAMensajes::habilita);
        conecta(corrida, &BotonDeCorrida::terminada, this, &FormRSAMensajes::habilita);
    }
    conecta(ui->enviar, &QToolButton::clicked, this, &FormRSAMensajes::enviar_Click);
    conecta(ui->recibir, &QToolButton::clicked, this, &FormRSAMensajes::recibir_Click);
    conecta(ui->revisar, &QToolButton::clicked, this, &FormRSAMensajes::revisar_Click);
}

void FormRSAMensajes::showEvent(QShowEvent *suceso)
{
    QWidget::showEvent(suceso);
    m_destinatario.aparece();
}

void FormRSAMensajes::hideEvent(QHideEvent *suceso)
{
    QWidget::hideEvent(suceso);
    m_destinatario.desaparece();
}

bool FormRSAMensajes::eventFilter(QObject *objeto, QEvent *suceso)
{
    // The second click of a double click would send the message again: it is no repeated one before
    // the next scan.
    return (objeto == ui->enviar && suceso->type() == QEvent::MouseButtonDblClick) ||
           QWidget::eventFilter(objeto, suceso);
}

bool FormRSAMensajes::enCurso() const
{
    return m_enviar->enMarcha() || m_recibir->enMarcha() || m_revisar->enMarcha();
}

/// A click on the button of a run: whether it is to begin. One that is on is stopped.
bool FormRSAMensajes::empiezaCon(BotonDeCorrida *boton) const
{
    boton->detiene();
    return !enCurso();
}

void FormRSAMensajes::habilita()
{
    const bool libre = !enCurso();
    const bool puedeEnviar =
        !m_destinatario.usuario().isEmpty() && !m_redaccion.texto().trimmed().isEmpty();
    const bool puedeRecibir = !m_destinatario.t().trimmed().isEmpty();
    ui->enviar->setEnabled(m_enviar->enMarcha() || (libre && puedeEnviar));
    ui->recibir->setEnabled(m_recibir->enMarcha() || (libre && puedeRecibir));
    ui->revisar->setEnabled(m_revisar->enMarcha() || libre);
}

void FormRSAMensajes::FlexMensajes_Click()
{
    const QString clave = m_lista.claveElegida();
    const auto mensaje = m_mensajes.Item(clave);
    if (!mensaje)
        return;
    if (clave == m_mostrado && mensaje->Destinatario() == m_destinatario.usuario()) {
        m_destinatario.actualiza();
        return;
    }
    m_mostrado = clave;
    muestraMensaje(*mensaje);
    m_destinatario.elige(mensaje->Destinatario());
}

void FormRSAMensajes::cmbDestinatario_Validate(const QString &usuario)
{
    if (m_redaccion.dirige(usuario) || usuario != m_destinatario.usuario())
        m_mostrado.clear();
}

void FormRSAMensajes::muestraMensaje(const clsMensaje &mensaje)
{
    m_redaccion.muestraMensaje(mensaje.Destinatario(), mensaje.Asunto(), mensaje.TextoOriginal());
}

void FormRSAMensajes::revisaPronto()
{
    using namespace std::chrono_literals;
    m_timerRevision.start(enCurso() ? 100ms : 0ms);
}

Tarea<> FormRSAMensajes::TimerRevision_Timer()
{
    if (enCurso())
        revisaPronto();
    else if (ExisteFichero(m_clave->DirMensajes()))
        co_await revisa();
    else
        muestraMensajes({}, {});
}

Tarea<> FormRSAMensajes::revisar_Click()
{
    if (empiezaCon(m_revisar))
        co_await revisa();
}

Tarea<> FormRSAMensajes::revisa()
{
    try {
        const QString buzon = m_clave->DirMensajes();
        const auto marcha = m_revisar->empieza(m_tareas.billete());
        const RevisionDeBuzon revision = co_await revisaBuzon(buzon, marcha.billete());
        muestraMensajes(revision.mensajes, usuariosDelBuzon(buzon));
        muestraNeutro(ui->lblEstadoBuzon,
                      estadoDeRevision(revision.ilegibles, marcha.billete().detenida()));
    } catch (const ErrorEjecucion &) {
        muestraMensajes({}, {});
        Q_EMIT buzonPerdido();
        throw;
    }
    m_destinatario.actualiza();
}

QString FormRSAMensajes::estadoDeRevision(int ilegibles, bool detenida)
{
    QString estado = Traduce(u"Mensajes: %1"_s).arg(formatoEntero(m_mensajes.Count()));
    if (detenida)
        estado.prepend(Traduce(u"Revisión detenida"_s) + u". "_s);
    if (ilegibles > 0)
        estado += u". "_s + Traduce(u"No se han podido leer: %1"_s).arg(ilegibles);
    if (const QStringList nombres = m_redaccion.pendientes(); !nombres.isEmpty())
        estado += u". "_s + Traduce(u"Borradores para: %1"_s).arg(nombres.join(u", "_s));
    return estado;
}

/// A list made anew takes nothing away from what is being written, nor from the field of the
/// recipient, which offers the users of the mailbox and those who have drafts.
void FormRSAMensajes::muestraMensajes(const ColMensajes &mensajes, QStringList usuarios)
{
    m_mensajes = mensajes;
    m_lista.ponTextoVacio(Traduce(u"No hay mensajes en el buzón"_s));
    if (!m_lista.pon(m_mensajes, m_mostrado))
        m_mostrado.clear();
    for (const QString &nombre : m_redaccion.pendientes()) {
        if (!usuarios.contains(nombre, Qt::CaseInsensitive))
            usuarios << nombre;
    }
    m_destinatario.ofrece(usuarios);
    ui->lblEstadoBuzon->clear();
}

bool FormRSAMensajes::esRepetido(const QString &destinatario, const QString &asunto)
{
    const QString remitente = m_clave->fichero().usuario();
    if (!m_mensajes.Item(ColMensajes::clave(remitente, destinatario, asunto)))
        return false;
    interlocutor().avisa(this, Interlocutor::Icono::Critico,
                         Traduce(u"Ya hay un mensaje de "_s) + remitente + Traduce(u" para "_s) +
                             destinatario + Traduce(u" con asunto '"_s) + asunto + u'\'',
                         Traduce(u"Mensaje repetido"_s));
    return true;
}

/// Text and subject may both be unfit; one box tells it.
void FormRSAMensajes::escuchaErrores(clsMensaje &mensaje)
{
    connect(
        &mensaje, &clsMensaje::ErrorMensaje, this,
        [this](const QString &motivo) {
            interlocutor().avisa(this, Interlocutor::Icono::Exclamacion, motivo,
                                 Traduce(u"Error en el mensaje"_s));
        },
        Qt::SingleShotConnection);
}

Tarea<bool> FormRSAMensajes::confirmaSinClave(QString destinatario)
{
    if (m_destinatario.corresponsal().claveSirve())
        co_return true;
    const QString pregunta =
        Traduce(u"No hay una clave pública de %1 que sirva: nadie podrá leer el mensaje. ¿Enviarlo "
                u"así?"_s)
            .arg(destinatario);
    const bool si =
        co_await interlocutor().preguntaSiNo(this, pregunta, Traduce(u"Falta la clave pública"_s));
    // What was asked about is what is sent.
    co_return si &&destinatario == m_destinatario.usuario();
}

Tarea<> FormRSAMensajes::enviar_Click()
{
    if (!empiezaCon(m_enviar))
        co_return;
    const QString texto = m_redaccion.texto();
    const QString asunto = m_redaccion.asunto();
    const QString destinatario = m_destinatario.usuario();
    if (esRepetido(destinatario, asunto) || !seCodifica(ui->lblEstadoBuzon, texto) ||
        !seCodifica(ui->lblEstadoBuzon, asunto))
        co_return;
    m_destinatario.actualiza();
    const bool seEnvia = co_await confirmaSinClave(destinatario);
    if (!seEnvia || enCurso())
        co_return;
    const auto marcha = m_enviar->empieza(m_tareas.billete());
    clsMensaje mensaje;
    escuchaErrores(mensaje);
    mensaje.ponMensajeOK(true);
    mensaje.ponClave(&m_destinatario.corresponsal().clave());
    mensaje.ponDestinatario(destinatario);
    mensaje.ponRemitente(m_clave->fichero().usuario());
    mensaje.ponTextoOriginal(texto);
    mensaje.ponAsunto(asunto);
    co_await mensaje.CodificaTexto(marcha.billete());
    if (!marcha.billete().detenida())
        co_await mensaje.Envia(marcha.billete());
    cuentaEnvio(mensaje);
}

/// Nothing for one that was stopped on its way.
void FormRSAMensajes::cuentaEnvio(const clsMensaje &mensaje)
{
    if (mensaje.NombreFichero().isEmpty())
        return;
    if (mensaje.MensajeOK())
        m_redaccion.enviado(mensaje.Asunto(), mensaje.TextoOriginal());
    m_lista.ponTextoVacio(Traduce(u"Pulse «Revisar» para ver los mensajes del buzón"_s));
    const QString estado =
        mensaje.MensajeOK() ? Traduce(u"Mensaje enviado a %1 (%2). Para verlo, pulse «Revisar»."_s)
                            : Traduce(u"El mensaje a %1 ha salido sin texto (%2)"_s);
    muestraNeutro(ui->lblEstadoBuzon,
                  estado.arg(mensaje.Destinatario(), mensaje.NombreFichero().section(u'\\', -1)));
}

Tarea<> FormRSAMensajes::recibir_Click()
{
    if (!empiezaCon(m_recibir))
        co_return;
    const QString clave = m_lista.claveElegida();
    const auto mensaje = m_mensajes.Item(clave);
    if (!mensaje) {
        muestraVeredicto(ui->lblEstadoBuzon, false,
                         Traduce(u"Elija primero un mensaje de la lista."_s));
        co_return;
    }
    ui->lblEstadoBuzon->clear(); // it may say that none was chosen
    const auto marcha = m_recibir->empieza(m_tareas.billete());
    m_destinatario.corresponsal().clave().pont(m_destinatario.t());
    mensaje->ponClave(&m_destinatario.corresponsal().clave());
    mensaje->disconnect(this);
    escuchaErrores(*mensaje);
    co_await mensaje->Recibe(marcha.billete());
    // Another row may have been chosen meanwhile; this text waits in its own.
    if (m_lista.claveElegida() == clave)
        muestraMensaje(*mensaje);
}
