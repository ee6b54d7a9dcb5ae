// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/TemasDePaginas.h"

#include <QHash>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Fila
{
    QString palabra;
    QList<TemaDePagina> temas;
};

QStringList campos(const QString &nombres)
{
    return nombres.split(u' ');
}

/// A topic whose name in links is its key.
TemaDePagina tema(const QString &clave, const QString &rotulo, const QString &seccion,
                  const QStringList &campos = {})
{
    return {
        .nombre = clave, .clave = clave, .seccion = seccion, .campos = campos, .rotulo = rotulo};
}

TemaDePagina conPestanas(TemaDePagina tema, const QStringList &rotulos)
{
    tema.rotulosDePestanas = rotulos;
    return tema;
}

TemaDePagina cuestiones(const QString &seccion, const QStringList &campos = {})
{
    return tema(u"cuestiones"_s, u"Cuestiones"_s, seccion, campos);
}

/// By the names of the pictures in the menu, which tell the lessons apart. No field for an answer
/// that is judged, and none whose change would write a file.
QHash<QString, Fila> filas()
{
    // What is entered in one topic and used in the others.
    const QStringList clave = campos(u"txtQ_1 txtQ_2 txtS txtR ChkNumBits TxtNumBits"_s);
    const QStringList sucesion = campos(u"txtAlfa TxtBeta TxtF1 txtF2"_s);
    return {{u"FIBONACCI"_s,
             {u"fibonacci"_s,
              {tema(u"valores"_s, u"Valores"_s, u"calcular"_s,
                    campos(u"TxtN optMetodo_0 optMetodo_1 optMetodo_2"_s)),
               tema(u"aureo"_s, u"Número áureo"_s, u"aureo"_s, campos(u"TxtHasta"_s)),
               tema(u"zeckendorf"_s, u"Zeckendorf"_s, u"zeckendorf"_s, campos(u"TxtNumero"_s)),
               tema(u"identidades"_s, u"Identidades"_s, u"identidades"_s,
                    campos(u"TxtIndiceM TxtIndiceN"_s)),
               cuestiones(u"pruebalo"_s)}}},
            {u"EUCLIDES"_s,
             {u"euclides"_s,
              {tema(u"euclides"_s, u"Algoritmo de Euclides"_s, u"algoritmo"_s,
                    campos(u"StatusBar_1 FlexEuclides"_s)),
               tema(u"diofantica"_s, u"Ecuación diofántica"_s, u"diofantica"_s,
                    campos(u"txtNº_0 txtNº_1 txtNº_2"_s)),
               cuestiones(u"rapidez"_s, campos(u"TxtN"_s))}}},
            {u"PRIMOS"_s,
             {u"primos"_s,
              {tema(u"criba"_s, u"Criba de Eratóstenes"_s, u"criba"_s,
                    campos(u"txtMaxPrimo optTipoCriba_0 optTipoCriba_1"_s)),
               tema(u"test"_s, u"Test de primos"_s, u"test"_s, campos(u"txtNúmero txtNumBits"_s)),
               conPestanas(tema(u"factorizacion"_s, u"Factorización"_s, u"factorizar"_s,
                                campos(u"TxtN OptAlgoritmo_0 OptAlgoritmo_1 OptAlgoritmo_2"_s)),
                           {u"Descomponer"_s, u"Cómo crece el coste"_s}),
               cuestiones(u"bits"_s)}}},
            {u"UNIDADES"_s,
             {u"unidades"_s,
              {tema(u"unidades"_s, u"Unidades"_s, u"unidades"_s, campos(u"txtN txtElemento"_s)),
               tema(u"cayley"_s, u"Tabla de Cayley"_s, u"grupo"_s,
                    campos(u"txtNCayley OptOperacion_0 OptOperacion_1 OptOperacion_2"_s)),
               tema(u"grandes"_s, u"Números grandes"_s, u"grandes"_s,
                    campos(u"txtNGrande txtAGrande"_s)),
               cuestiones(u"fi"_s)}}},
            {u"RSA"_s,
             {u"rsa"_s,
              {{.nombre = u"clave"_s,
                .clave = {},
                .seccion = u"clave"_s,
                .campos = clave,
                .rotulo = u"Elección de clave"_s},
               tema(u"cod-decod"_s, u"Codificación y descodificación"_s, u"texto"_s,
                    clave + campos(u"txtTextoOriginal"_s)),
               tema(u"env-rec"_s, u"Enviar y recibir"_s, u"buzon"_s)}}},
            {u"TCR"_s,
             {u"congruencias"_s,
              {tema(u"sistemas"_s, u"Sistemas de congruencias"_s, u"metodo"_s,
                    campos(u"txtNumEcuaciones FlexTCR txtSol1"_s))}}},
            {u"RECURSION"_s,
             {u"complejidad"_s,
              {tema(u"fibonacci"_s, u"Fibonacci"_s, u"contar"_s,
                    campos(u"TxtHasta optLlamadas optTiempo"_s)),
               tema(u"arbol"_s, u"Árbol de llamadas"_s, u"arbol"_s, campos(u"SpinN chkMemoria"_s)),
               tema(u"hanoi"_s, u"Torres de Hanói"_s, u"hanoi"_s, campos(u"SpinDiscos"_s)),
               cuestiones(u"crecimiento"_s)}}},
            {u"RECURMOD"_s,
             {u"modular"_s,
              {tema(u"funcion"_s, u"Función"_s, u"sucesion"_s, sucesion),
               tema(u"representacion"_s, u"Representación"_s, u"periodo"_s,
                    sucesion + campos(u"TxtMódulo"_s)),
               tema(u"valores"_s, u"Valores"_s, u"modulo"_s, sucesion + campos(u"TxtMódulo"_s)),
               cuestiones(u"periodo"_s)}}},
            {u"FUNREC"_s,
             {u"funciones"_s,
              {{.nombre = u"funciones"_s,
                .clave = u"funciones"_s,
                .seccion = u"ackermann"_s,
                .campos = campos(u"TxtX TxtY txtMaxAck TxtInicial TxtCapInicial"_s),
                .pestanas = {u"ackermann"_s, u"granizo"_s, u"capicuas"_s},
                .rotulo = u"Funciones"_s,
                .rotulosDePestanas = {u"Ackermann"_s, u"Hailstone"_s, u"Capicúas"_s}}}}},
            {u"HOJACALCULO"_s,
             {u"minical"_s,
              {{.nombre = u"hoja"_s,
                .clave = u"hoja"_s,
                .seccion = u"empezar"_s,
                .celdas = u"FlexCalc"_s,
                .rotulo = u"Hoja de cálculo"_s}}}}};
}

void pon(Leccion &leccion, const QHash<QString, Fila> &todas)
{
    const Fila fila = todas.value(leccion.icono);
    leccion.palabra = fila.palabra;
    leccion.temas = fila.temas;
}

} // namespace

void ponTemasDePaginas(Contenido &contenido)
{
    const QHash<QString, Fila> todas = filas();
    for (Leccion &leccion : contenido.lecciones)
        pon(leccion, todas);
    pon(contenido.hojaDeCalculo, todas);
    // No link leads into the practice window by its topics.
    for (const auto &[clave, rotulo] : {std::pair(u"practicar"_s, u"Practicar"_s),
                                        {u"mapa"_s, u"Mapa"_s},
                                        {u"historia"_s, u"Historia"_s},
                                        {u"hojas"_s, u"Hojas"_s},
                                        {u"clase"_s, u"Clase"_s}})
        contenido.practicas.ventana.temas
            << TemaDePagina{.nombre = clave, .clave = clave, .rotulo = rotulo};
}
