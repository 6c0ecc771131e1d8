#include "messagetable.h"

using enum MessageIcon;

// Shown before the language is known, hence all three at once.
static constexpr MessageText kFileMissing = {u"Arquivo ausente - File not found",
                                             u"BR - Arquivo: 'Config.pmx' ausente, reinstale o software\n\n"
                                             u"US - Config.pmx' missing, reinstall software\n\n"
                                             u"ES - Archivo: falta 'Config.pmx', reinstale el software",
                                             Critical};

// The leading blanks of some titles, "iPhxne" and "Model no found." are kept as technicians know them.
static constexpr MessageRow kBenchMessages[] = {
    {u"MSG_PORTA",
     {{{kProductName,
        u" SIGA OS PASSOS:\n"
        u"1. Coloque o iPhxne em modo purple\n"
        u"2. Feche o software da Box mas mantenha o iPhxne conectado a Box\n"
        u"3. Selecione a Porta COM\n"
        u"4. Clique em Conectar\n"
        u"5. Caso o dispositivo parou de responder reinicie-o e repita os passos",
        None},
       {kProductName,
        u" FOLLOW THE STEPS:\n"
        u"1. Put iPhxne in purple mode\n"
        u"2. Close the Box software but keep the iPhxne connected to Box\n"
        u"3. Select COM Port\n"
        u"4. Click Connect\n"
        u"5. If the device stopped responding, restart it and repeat the steps",
        None},
       {kProductName,
        u" SIGA LOS PASOS:\n"
        u"1. Ponga el iPhxne en modo púrpura\n"
        u"2. Cierre el software de la Box pero mantenga el iPhxne conectado a la Box\n"
        u"3. Seleccione el Puerto COM\n"
        u"4. Haga clic en Conectar\n"
        u"5. Si el dispositivo dejó de responder, reinícielo y repita los pasos",
        None}}}},
    {u"MSG_PORTA_NAO_RESPONDE",
     {{{u"  Erro ao conectar",
        u"Dispositivo não localizado na PORTA COM selecionada ou não respondendo.\n"
        u"Verifique se a BOX esta conectada com PC, escolha a PORTA COM a qual a Box esta conectada e tente "
        u"novamente."},
       {u"Error connecting",
        u"Device not found on selected COM PORT or not responding.\n"
        u"Check if the BOX is connected with PC, choose the COM PORT the Box is connected to and try again."},
       {u"Error al conectar",
        u"Dispositivo no encontrado en el PUERTO COM seleccionado o no responde.\n"
        u"Verifique que la BOX esté conectada al PC, elija el PUERTO COM al que está conectada la Box e inténtelo de "
        u"nuevo."}}}},
    {u"MSG_PORTA_EM_USO",
     {{{u"Porta COM em uso",
        u"Porta de comunicação COM %1 em uso por outro aplicativo, finalize o aplicativo da Box ou Cabo, tente "
        u"novamente."},
       {u"Port COM in use",
        u"Port communication COM %1 in use by another application, end the Box or Cable application, try again."},
       {u"Puerto COM en uso",
        u"Puerto de comunicación COM %1 en uso por otra aplicación, cierre la aplicación de la Box o del Cable e "
        u"inténtelo de nuevo."}}}},
    {u"MSG_PORTA_INVALIDA",
     {{{u"Porta COM inválida", u"Porta de comunicação COM %1 Inválida\nAltere a porta USB da Box e tente novamente."},
       {u"Port COM invalid", u"Port communication COM %1 invalid\nChange the Box's USB port and try again."},
       {u"Puerto COM no válido",
        u"Puerto de comunicación COM %1 no válido\nCambie el puerto USB de la Box e inténtelo de nuevo."}}}},
    {u"SEM_PORTA",
     {{{u"Porta Serial COM", u"Selecione uma Porta COM válida\nVerifique se a BOX está conectada ao Computador"},
       {u"Serial COM Port", u"Select a COM Port\nCheck if the BOX is connected to the PC"},
       {u"Puerto COM serial", u"Seleccione un Puerto COM válido\nVerifique que la BOX esté conectada al PC"}}}},
    {u"MSG_SELECIONE_MODELO",
     {{{u"Modelo do Dispositivo", u"Modelo não identificado.\n"
                                  u"Selecione o Modelo do Dispositivo para uma análise e comparação correta!"},
       {u"Device Model", u"Model no found.\nSelect the Device Model for correct analysis and comparison!"},
       {u"Modelo del Dispositivo",
        u"Modelo no identificado.\n"
        u"¡Seleccione el Modelo del Dispositivo para un análisis y una comparación correctos!"}}}},
    {u"MSG_ERRO_NAND",
     {{{u"  Erro Leitura NAND", u"Verificar Memória Nand\nPossível problema ou inconsistência de dados gravados!",
        None},
       {u"Error Reading NAND", u"Check Nand Memory\nPossible problem or inconsistency of recorded data!"},
       {u"Error al Leer NAND",
        u"Verificar la Memoria Nand\n¡Posible problema o inconsistencia de los datos grabados!"}}}},
    {u"PRIMEIRO_LEITURA",
     {{{kProductName, u"Primeiro execute uma leitura", None},
       {kProductName, u"First perform a read", None},
       {kProductName, u"Primero realiza una lectura", None}}}},
    {u"SOMENTE_X",
     {{{kProductName, u"Função somente para IP X"},
       {kProductName, u"Function only for IP X"},
       {kProductName, u"Función solo para IP X"}}}},
    {u"MSG_NAO_PARA_IP6",
     {{{u"IP6/IP6s PLUS", u"Esse comando não funciona para IP6/6 Plus/6s/6s Plus"},
       {u"IP6/IP6s PLUS", u"This command does not work for IP6/6 Plus/6s/6s Plus"},
       {u"IP6/IP6s PLUS", u"Este comando no funciona para IP6/6 Plus/6s/6s Plus"}}}},
    {u"MSG_SYSCFG",
     {{{u"SYSCFG não permitido!", u"Comandos com SYSCFG não são permitidos!"},
       {u"SYSCFG Not Allowed!", u"Commands with SYSCFG are not allowed!"},
       {u"¡SYSCFG no permitido!", u"¡No se permiten comandos con SYSCFG!"}}}},
    {u"MSG_DADOS_SYNC",
     {{{u"Sincronização de dados", u"Dados sincronizados com sucesso!"},
       {u"Data synchronization", u"Data synchronized successfully!"},
       {u"Sincronización de datos", u"¡Datos sincronizados con éxito!"}}}},
    {u"MSG_INTERNET",
     {{{u"  Erro de conexão",
        u"Possíveis causas:\n"
        u"Computador não conectado a internet\n"
        u"Internet não disponível no momento\n"
        u"Firewall\n"
        u"Servidor do software indisponível\n"
        u"Aguade um momento e tente novamente\n"
        u"ou entre em contato com suporte técnico",
        Critical},
       {u"  Connection error",
        u"Possible causes:\n"
        u"Computer not connected to internet\n"
        u"Internet not available at the moment\n"
        u"Firewall\n"
        u"Software server unavailable\n"
        u"Wait a moment and try again\n"
        u"or contact technical support",
        Critical},
       {u"  Error de conexión",
        u"Posibles causas:\n"
        u"Computadora no conectada a internet\n"
        u"Internet no disponible en este momento\n"
        u"Firewall\n"
        u"Servidor del software no disponible\n"
        u"Espere un momento e inténtelo de nuevo\n"
        u"o póngase en contacto con el soporte técnico",
        Critical}}}},
    {u"MSG_INTERNET_GERAL",
     {{{u" Tavimo Prelt - Erro de conexão",
        u"Computador não conectado a internet.\n"
        u"Conexão com internet é requerido para a utilização do Tavimo Prelt.",
        Critical},
       {u" Tavimo Prelt - Connection error",
        u"Computer not connected to the internet.\n"
        u"Internet connection is required for Tavimo Prelt.",
        Critical},
       {u" Tavimo Prelt - Error de conexión",
        u"Computadora no conectada a internet.\n"
        u"Se requiere conexión a internet para utilizar Tavimo Prelt.",
        Critical}}}},
    {u"ARQUIVO_AUSENTE", {{kFileMissing, kFileMissing, kFileMissing}}},
};

static constexpr QuestionRow kQuestions[] = {
    {u"Porta 16", u"Porta Serial COM"},
    {u"Deseja salvar?", u"Gravar"},
    {u"Deseja salvar as alterações?", u"Salvar"},
    {u"Deseja excluir os dados gravados?", u"Excluir"},
    {u"Deseja substituir os dados gravados do lado comparador?", u"Dados"},
    {u"Deseja excluir o comando ", u"Excluir Comando", {}, u"%1  ?"},
    {u"Desligar Dispositivo", u"Desligar Dispositivo"},
    {u"Reiniciar Dispositivo", u"Reiniciar Dispositivo"},
    {u"Processo syscfg", u"Testes de Memória Nand"},
    {u"Dados UPDATE1", u"Sincronização", u"Dados UPDATE2"},
};

std::span<const MessageRow> benchMessages()
{
    return kBenchMessages;
}

std::span<const QuestionRow> questions()
{
    return kQuestions;
}
