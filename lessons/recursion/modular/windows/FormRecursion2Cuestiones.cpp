// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/modular/windows/FormRecursion2Cuestiones.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/access/Anuncio.h"
#include "shell/core/CopiaDeTrabajo.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Textos.h"
#include "ui_FormRecursion2Cuestiones.h"

using namespace Qt::Literals::StringLiterals;

FormRecursion2Cuestiones::FormRecursion2Cuestiones(QWidget *leccion)
    : QWidget(leccion), ui(std::make_unique<Ui::FormRecursion2Cuestiones>())
{
    ui->setupUi(this);
    traduceVentana(this);
    Aspecto::destaca(ui->lblCuestion1, 1.15);
    Aspecto::destaca(ui->lblCuestion2, 1.15);
    ponApuntes(ui->txtApuntes1, u"recursion2.demostracion1"_s);
    ponApuntes(ui->txtApuntes2, u"recursion2.demostracion2"_s);
    ponPistas(ui->cmdPista1, ui->lblPistas1,
              {Traduce(u"Cada valor sale de los dos anteriores: fíjese en las parejas de valores "
                       u"seguidos."_s),
               Traduce(u"En Zn hay n² parejas, y los lugares de la sucesión no se acaban: alguna "
                       u"pareja se repite."_s),
               Traduce(u"A parejas iguales les sigue el mismo valor, y así la pareja siguiente "
                       u"vuelve a ser igual."_s)});
    ponPistas(ui->cmdPista2, ui->lblPistas2,
              {Traduce(u"En vez de parejas, mire grupos de k valores seguidos: ¿cuántos grupos "
                       u"distintos hay en Zn?"_s),
               Traduce(u"Hay un número finito de grupos: dos de ellos, los que empiezan en i y en "
                       u"j, son iguales."_s),
               Traduce(u"Pruebe por inducción sobre t que los valores en i + t y en j + t son "
                       u"iguales: j − i es un período."_s),
               Traduce(u"¿Dónde ha usado que la función sea lineal? Basta que el grupo determine "
                       u"el valor que sigue."_s)});
}

FormRecursion2Cuestiones::~FormRecursion2Cuestiones() = default;

void FormRecursion2Cuestiones::ponApuntes(QPlainTextEdit *campo, const QString &archivo)
{
    auto copia = std::make_unique<CopiaDeTrabajo>(
        Sesión().carpetaDeAjustes(), archivo, [campo] { return campo->toPlainText().toUtf8(); },
        this);
    try {
        campo->setPlainText(QString::fromUtf8(copia->guardada()));
    } catch (const ErrorEjecucion &motivo) {
        // What cannot be read is not written over.
        campo->setEnabled(false);
        campo->setPlaceholderText(Traduce(u"No se pueden leer sus apuntes."_s) + u' ' +
                                  motivo.texto());
        return;
    }
    connect(campo, &QPlainTextEdit::textChanged, copia.get(), &CopiaDeTrabajo::cambia);
    conecta(copia.get(), &CopiaDeTrabajo::fallida, this,
            [this](const ErrorEjecucion &motivo) { informaError(this, motivo); });
    m_copias.push_back(std::move(copia));
}

void FormRecursion2Cuestiones::ponPistas(QPushButton *boton, QLabel *rotulo,
                                         const QStringList &pistas)
{
    conecta(boton, &QPushButton::clicked, this, [boton, rotulo, pistas] {
        const QString aparte = u"\n\n"_s;
        const qsizetype cuantas = rotulo->text().split(aparte, Qt::SkipEmptyParts).size() + 1;
        rotulo->setText(pistas.first(cuantas).join(aparte));
        anuncia(pistas.at(cuantas - 1));
        boton->setEnabled(cuantas < pistas.size());
    });
}
