// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/mailbox/ColMensajes.h"
#include "lessons/rsa/windows/FormRSADestinatario.h"
#include "lessons/rsa/windows/FormRSALista.h"
#include "lessons/rsa/windows/FormRSARedaccion.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/Evento.h"

#include <QTimer>
#include <QWidget>
#include <memory>

namespace Ui {
class FormRSAMensajes;
}

/// The topic "Enviar y recibir": the messages of the mailbox, the key of the chosen correspondent,
/// and the message that is read or written. One run at a time: a scan, or a message on its way.
class FormRSAMensajes : public QWidget
{
    Q_OBJECT

public:
    /// `clave` is the student's own key.
    FormRSAMensajes(std::shared_ptr<ClsRSA> clave, QWidget *leccion);
    ~FormRSAMensajes() override;

    /// Scans the mailbox as soon as no run is in progress; one that is not there has no messages.
    void revisaPronto();

    Tareas &tareas() { return m_tareas; }

Q_SIGNALS:
    /// The mailbox could not be read.
    void buzonPerdido();

protected:
    void showEvent(QShowEvent *suceso) override;
    void hideEvent(QHideEvent *suceso) override;
    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    void conectaTodo();
    void muestraMensaje(const clsMensaje &mensaje);
    void muestraMensajes(const ColMensajes &mensajes, QStringList usuarios);
    QString estadoDeRevision(int ilegibles, bool detenida);
    bool esRepetido(const QString &destinatario, const QString &asunto);
    void escuchaErrores(clsMensaje &mensaje);
    void cuentaEnvio(const clsMensaje &mensaje);
    bool enCurso() const;
    bool empiezaCon(BotonDeCorrida *boton) const;
    void habilita();
    Tarea<> revisa();
    Tarea<bool> confirmaSinClave(QString destinatario);

    void FlexMensajes_Click();
    void cmbDestinatario_Validate(const QString &usuario);
    Tarea<> enviar_Click();
    Tarea<> recibir_Click();
    Tarea<> revisar_Click();
    Tarea<> TimerRevision_Timer();

    std::unique_ptr<Ui::FormRSAMensajes> ui;
    std::shared_ptr<ClsRSA> m_clave;
    ColMensajes m_mensajes;
    FormRSALista m_lista;
    BotonDeCorrida *m_enviar;
    BotonDeCorrida *m_recibir;
    BotonDeCorrida *m_revisar;
    QTimer m_timerRevision; ///< a scan that is due
    FormRSADestinatario m_destinatario;
    QString m_mostrado; ///< the key of the message that is shown
    FormRSARedaccion m_redaccion;
    TareasDeVentana m_tareas{this};
};
