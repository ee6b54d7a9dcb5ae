#pragma once

#include "lessons/rsa/mailbox/ColMensajes.h"
#include "lessons/rsa/mailbox/Corresponsal.h"
#include "lessons/rsa/windows/FormRSACorrida.h"
#include "lessons/rsa/windows/FormRSARedaccion.h"
#include "lessons/rsa/windows/TablaDeTextos.h"

#include <QTimer>
#include <QWidget>
#include <memory>

class FormClaveRSA;
class FormLeccion;

namespace Ui {
class FormRSAMensajes;
}

/// The topic "Enviar y recibir": the messages of the mailbox, the key of the chosen correspondent,
/// and the message that is read or written.
class FormRSAMensajes : public QWidget
{
    Q_OBJECT

public:
    /// `clave` is the student's own key.
    FormRSAMensajes(ClsRSA &clave, FormLeccion *leccion);
    ~FormRSAMensajes() override;

    /// Scans the mailbox as soon as no run is in progress; one that is not there has no messages.
    void revisaPronto();

    /// The button of the run in progress, if it was started here.
    QAbstractButton *botonDeParada() const { return m_mandos.botonDeParada(); }

Q_SIGNALS:
    /// The mailbox could not be read.
    void buzonPerdido();

protected:
    void showEvent(QShowEvent *suceso) override;
    void hideEvent(QHideEvent *suceso) override;
    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    void eligeDestinatario(const QString &usuario);
    void actualizaDestinatario();
    void olvidaDestinatario();
    void revisa();
    void vaciaLista();
    QString estadoDeRevision(int ilegibles);
    void muestraLista(const QString &estado);
    void muestraUsuarios(const QStringList &usuarios);
    int filaElegida() const;
    QString claveDeFila(int fila) const;
    void nombra(const QString &usuario);
    void muestraMensaje(const clsMensaje &mensaje);
    void envia();
    void recibe();
    bool esRepetido(const QString &destinatario, const QString &asunto);
    void escuchaErrores(clsMensaje &mensaje);
    void habilita();

    void FlexMensajes_Click(int fila);
    void cmbDestinatario_Click();
    void cmbDestinatario_Validate();
    void enviar_Click();
    void recibir_Click();
    void revisar_Click();
    void TimerRevision_Timer();

    std::unique_ptr<Ui::FormRSAMensajes> ui;
    ClsRSA &m_clave;
    Corresponsal m_corresponsal;
    ColMensajes m_mensajes;
    TablaDeTextos m_tabla;
    QTimer m_timerRevision; ///< a scan that is due
    FormLeccion *m_leccion;
    FormRSACorrida m_mandos;
    FormClaveRSA *m_ventanaClave;
    int m_filaMostrada = -1;
    FormRSARedaccion m_redaccion;
};
