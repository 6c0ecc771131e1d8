#include "messagetable.h"

using enum MessageIcon;

// Columns: key, icon, Portuguese, English, Spanish.
static constexpr NoticeRow kWorkbenchMessages[] = {
    // Store: %1 the path, %2, where there is one, the reason as the system words it
    {u"STORE_MISSING",
     Critical,
     {u"Banco de dados não encontrado: %1\nCrie-o com \"prelt store init\" ou reinstale o software.",
      u"Store not found: %1\nMake it with \"prelt store init\" or reinstall the software.",
      u"Base de datos no encontrada: %1\nCréela con \"prelt store init\" o reinstale el software."}},
    {u"IMPORT_NOTHING",
     Information,
     {u"Nada a importar: não há dados de uma versão anterior em %1.",
      u"Nothing to import: there are no data of a former version at %1.",
      u"Nada que importar: no hay datos de una versión anterior en %1."}},
    {u"STORE_LOCKED",
     Critical,
     {u"Banco de dados em uso por outro programa: %1\nFeche o outro programa e tente novamente.\n%2",
      u"Store in use by another program: %1\nClose the other program and try again.\n%2",
      u"Base de datos en uso por otro programa: %1\nCierre el otro programa e inténtelo de nuevo.\n%2"}},
    {u"STORE_READ_ONLY",
     Critical,
     {u"Banco de dados somente leitura: %1\nDê permissão de escrita ao arquivo e à sua pasta. Nada foi alterado.\n%2",
      u"Store is read-only: %1\nGive write permission to the file and its folder. Nothing was changed.\n%2",
      u"Base de datos de solo lectura: %1\nDé permiso de escritura al archivo y a su carpeta. No se modificó "
      u"nada.\n%2"}},
    {u"STORE_DAMAGED",
     Critical,
     {u"Banco de dados danificado: %1\nRestaure a última cópia de segurança. O arquivo não foi alterado.\n%2",
      u"Store is damaged: %1\nRestore the last backup. The file was not changed.\n%2",
      u"Base de datos dañada: %1\nRestaure la última copia de seguridad. El archivo no fue modificado.\n%2"}},
    {u"STORE_FULL",
     Critical,
     {u"Disco cheio ao gravar: %1\nLibere espaço e tente novamente. Os dados anteriores foram mantidos.\n%2",
      u"Disk full while writing: %1\nFree some space and try again. The earlier data was kept.\n%2",
      u"Disco lleno al guardar: %1\nLibere espacio e inténtelo de nuevo. Se conservaron los datos anteriores.\n%2"}},
    {u"STORE_FAILED",
     Critical,
     {u"Erro no banco de dados: %1\n%2", u"Store error: %1\n%2", u"Error en la base de datos: %1\n%2"}},
    {u"STORE_EXISTS",
     Critical,
     {u"O arquivo já existe e não foi alterado: %1\nApague-o ou escolha outro nome ou outra pasta.",
      u"The file exists already and was not changed: %1\nDelete it, or choose another name or folder.",
      u"El archivo ya existe y no fue modificado: %1\nBórrelo, o elija otro nombre u otra carpeta."}},
    {u"STORE_FOREIGN",
     Critical,
     {u"Recusado: não é um banco de dados confiável deste programa: %1\nEscolha outro arquivo ou restaure uma cópia de "
      u"segurança. Nada foi alterado.\n%2",
      u"Refused, not a store that this program can trust: %1\nChoose another file or restore a backup. Nothing was "
      u"changed.\n%2",
      u"Rechazado: no es una base de datos confiable de este programa: %1\nElija otro archivo o restaure una copia de "
      u"seguridad. No se modificó nada.\n%2"}},
    {u"STORE_NEWER",
     Critical,
     {u"Banco de dados de uma versão mais nova: %1\nAtualize o programa. Nada foi alterado.\n%2",
      u"Store of a newer version: %1\nUpdate the program. Nothing was changed.\n%2",
      u"Base de datos de una versión más nueva: %1\nActualice el programa. No se modificó nada.\n%2"}},
    {u"BACKUP_FAILED",
     Information,
     {u"Cópia de segurança não criada em %1: %2\nAs cópias anteriores foram mantidas. Verifique o espaço e a permissão "
      u"da pasta.",
      u"No backup made in %1: %2\nEarlier backups were kept. Check the free space and the permission of the folder.",
      u"No se creó la copia de seguridad en %1: %2\nSe conservaron las copias anteriores. Verifique el espacio y el "
      u"permiso de la carpeta."}},

    // Outcomes of work on the store: %1 the path
    {u"STORE_GOOD",
     Information,
     {u"Banco de dados íntegro: %1", u"The store is sound: %1", u"La base de datos está íntegra: %1"}},
    {u"STORE_FINDINGS",
     Critical,
     {u"Problemas encontrados (%2) em %1\nNada foi alterado. Há cópias de segurança na pasta \"backups\" ao lado.",
      u"Problems found (%2) in %1\nNothing was changed. Backups are in the folder \"backups\" beside it.",
      u"Problemas encontrados (%2) en %1\nNo se modificó nada. Hay copias de seguridad en la carpeta \"backups\" al "
      u"lado."}},
    {u"STORE_BACKED_UP",
     Information,
     {u"Cópia de segurança criada: %1", u"Backup made: %1", u"Copia de seguridad creada: %1"}},
    {u"STORE_EXPORTED",
     Information,
     {u"Exportado para %1: %2 tabelas", u"Exported to %1: %2 tables", u"Exportado a %1: %2 tablas"}},
    // %1 readings, %2 recordings, %3 commands, %4 left out
    {u"STORE_IMPORTED",
     Information,
     {u"Importado: %1 malhas com leituras, %2 gravações, %3 comandos novos; %4 linhas ficaram de fora.",
      u"Imported: %1 rails with readings, %2 recordings, %3 new commands; %4 rows were left out.",
      u"Importado: %1 mallas con lecturas, %2 grabaciones, %3 comandos nuevos; %4 filas quedaron fuera."}},
    // %1 the name, %2 what is known
    {u"SETTING_UNKNOWN",
     Information,
     {u"Configuração desconhecida: %1\nConhecidas: %2", u"Unknown setting: %1\nKnown: %2",
      u"Configuración desconocida: %1\nConocidas: %2"}},
    // %1 the name, %2 the value, %3 what it may be
    {u"SETTING_INVALID",
     Information,
     {u"Valor não aceito para %1: %2\nAceito: %3", u"Value not accepted for %1: %2\nAccepted: %3",
      u"Valor no aceptado para %1: %2\nAceptado: %3"}},

    // What may mend a port that does not open
    {u"REMEDY_GROUP",
     Information,
     {u"Entre no grupo \"%1\" (sudo usermod -aG %1 $USER) e inicie uma nova sessão.",
      u"Add yourself to the group \"%1\" (sudo usermod -aG %1 $USER) and log in anew.",
      u"Agréguese al grupo \"%1\" (sudo usermod -aG %1 $USER) e inicie una nueva sesión."}},
    {u"REMEDY_NEW_LOGIN",
     Information,
     {u"Você já está no grupo \"%1\": encerre a sessão e entre novamente.",
      u"You are in the group \"%1\" already: log out and in again.",
      u"Ya está en el grupo \"%1\": cierre la sesión y vuelva a entrar."}},
    {u"REMEDY_IN_USE",
     Information,
     {u"Feche o programa que está usando %1 e tente novamente.", u"Close the program that holds %1 and try again.",
      u"Cierre el programa que está usando %1 e inténtelo de nuevo."}},
    // %1 the device, %2 the program, %3 its process number
    {u"REMEDY_HELD_BY",
     Information,
     {u"%1 está em uso por %2 (processo %3). Feche esse programa e tente novamente.",
      u"%1 is held by %2 (process %3). Close that program and try again.",
      u"%1 está en uso por %2 (proceso %3). Cierre ese programa e inténtelo de nuevo."}},
    {u"REMEDY_ORPHANED_LOCK",
     Information,
     {u"Um programa que já terminou deixou um bloqueio: apague-o (sudo rm %1) e tente novamente.",
      u"A program that has ended left a lock behind: delete it (sudo rm %1) and try again.",
      u"Un programa que ya terminó dejó un bloqueo: bórrelo (sudo rm %1) e inténtelo de nuevo."}},
    {u"REMEDY_DEVICE_RIGHTS",
     Information,
     {u"Só o dono pode usar %1: libere o acesso (sudo chmod a+rw %1) e tente novamente.",
      u"Only its owner may use %1: give access (sudo chmod a+rw %1) and try again.",
      u"Solo el propietario puede usar %1: habilite el acceso (sudo chmod a+rw %1) e inténtelo de nuevo."}},
    {u"REMEDY_MODEMMANAGER",
     Information,
     {u"O ModemManager testa adaptadores USB por até meio minuto: aguarde, ou desative-o "
      u"(sudo systemctl disable --now ModemManager).",
      u"ModemManager probes USB adapters for up to half a minute: wait, or switch it off "
      u"(sudo systemctl disable --now ModemManager).",
      u"ModemManager prueba los adaptadores USB durante medio minuto como máximo: espere o desactívelo "
      u"(sudo systemctl disable --now ModemManager)."}},
    {u"REMEDY_BRLTTY",
     Information,
     {u"O brltty (linhas Braille) toma adaptadores USB para si. Se não usa Braille, remova-o "
      u"(sudo apt remove brltty) e reconecte a Box.",
      u"brltty (Braille displays) takes USB adapters for itself. If you use no Braille display, remove it "
      u"(sudo apt remove brltty) and plug the Box in again.",
      u"brltty (líneas Braille) se apodera de los adaptadores USB. Si no usa Braille, quítelo "
      u"(sudo apt remove brltty) y vuelva a conectar la Box."}},
    {u"REMEDY_NOT_A_PORT",
     Information,
     {u"%1 não é uma porta serial. Escolha a porta da Box.", u"%1 is no serial port. Choose the port of the Box.",
      u"%1 no es un puerto serie. Elija el puerto de la Box."}},
    {u"REMEDY_NO_PORT",
     Information,
     {u"Ligue a Box ao computador, atualize a lista de portas e tente novamente.",
      u"Plug the Box into the computer, refresh the list of ports and try again.",
      u"Conecte la Box a la computadora, actualice la lista de puertos e inténtelo de nuevo."}},

    // What was refused, ignored or lost
    {u"REFUSED_NOT_CONNECTED",
     Information,
     {u"Não enviado: sem conexão. Escolha a porta e clique em Conectar.",
      u"Not sent: not connected. Choose the port and press Connect.",
      u"No enviado: sin conexión. Elija el puerto y haga clic en Conectar."}},
    {u"REFUSED_BUSY",
     Information,
     {u"Recusado: um comando ainda está em andamento. Aguarde a resposta.",
      u"Refused: a command is still in flight. Wait for its reply.",
      u"Rechazado: todavía hay un comando en curso. Espere la respuesta."}},
    {u"REFUSED_NO_MODEL",
     Information,
     {u"Recusado: o modelo não é conhecido. Selecione o modelo do dispositivo.",
      u"Refused: the model is not known. Select the device model.",
      u"Rechazado: el modelo no es conocido. Seleccione el modelo del dispositivo."}},
    {u"REFUSED_NO_READING",
     Information,
     {u"Recusado: ainda não há leitura. Primeiro execute uma leitura.",
      u"Refused: there is no reading yet. Run a read first.",
      u"Rechazado: aún no hay lectura. Primero ejecute una lectura."}},
    {u"REFUSED_NO_COMMAND",
     Information,
     {u"Não enviado: o comando está vazio.", u"Not sent: the command is empty.",
      u"No enviado: el comando está vacío."}},
    {u"MODEL_QUERY_UNKNOWN",
     Information,
     {u"O dispositivo não reconheceu a consulta do modelo. Se você estiver testando um IP7, repita o processo sem "
      u"desconectar ele da BOX; ou selecione o modelo.",
      u"The device did not know the model query. If you are testing an IP7, repeat the process without disconnecting "
      u"it from the BOX; or select the model.",
      u"El dispositivo no reconoció la consulta del modelo. Si está probando un IP7, repita el proceso sin "
      u"desconectarlo del BOX; o seleccione el modelo."}},
    // %1 the last number
    {u"REFUSED_BUCK",
     Information,
     {u"Não enviado: o buck deve ser um número de 0 a %1.", u"Not sent: the buck must be a number from 0 to %1.",
      u"No enviado: el buck debe ser un número de 0 a %1."}},
    // %1 the model, %2 the command, %3 the size
    {u"RECORDED",
     Information,
     {u"Gravado: %1, %2 (%3 bytes).", u"Recorded: %1, %2 (%3 bytes).", u"Grabado: %1, %2 (%3 bytes)."}},
    // %1 the model, %2 the bus
    {u"REFUSED_BUS",
     Information,
     {u"Não enviado: o %1 não tem o barramento I2C %2 para testar.",
      u"Not sent: the %1 has no I2C bus %2 to be tested.", u"No enviado: el %1 no tiene el bus I2C %2 para probar."}},
    {u"COMMAND_APOSTROPHE",
     Information,
     {u"Recusado: um comando com apóstrofo não pode ser gravado.",
      u"Refused: a command with an apostrophe cannot be stored.",
      u"Rechazado: no se puede guardar un comando con apóstrofo."}},
    // %1 the document, %2 and %3 where it was looked for
    {u"GUIDE_MISSING",
     Information,
     {u"O documento %1 não foi encontrado.\nProcurado em: %2\n%3",
      u"The document %1 was not found.\nLooked for in: %2\n%3",
      u"No se encontró el documento %1.\nBuscado en: %2\n%3"}},
    {u"PDF_NOT_WRITTEN",
     Information,
     {u"O PDF não pôde ser gravado: %1\n%2", u"The PDF could not be written: %1\n%2",
      u"No se pudo guardar el PDF: %1\n%2"}},
    {u"PDF_SAVED", Information, {u"Relatório salvo: %1", u"Report saved: %1", u"Reporte guardado: %1"}},
    // %1 the file, %2 the reason as the system words it
    {u"TEXT_NOT_SAVED",
     Information,
     {u"O texto não pôde ser salvo: %1\n%2", u"The text could not be saved: %1\n%2",
      u"No se pudo guardar el texto: %1\n%2"}},
    {u"DOCUMENT_NOT_OPENED",
     Information,
     {u"O sistema não tem um programa para abrir: %1", u"The system has no program to open: %1",
      u"El sistema no tiene un programa para abrir: %1"}},
    {u"IGNORED_EMPTY_REPLY",
     Information,
     {u"O dispositivo não respondeu; nada foi avaliado.", u"The device did not answer; nothing was judged.",
      u"El dispositivo no respondió; no se evaluó nada."}},
    {u"REPLY_CUT",
     Information,
     {u"A resposta foi interrompida antes do fim; o que falta conta como não medido.",
      u"The reply was cut off before its end; what is missing counts as not measured.",
      u"La respuesta se interrumpió antes del final; lo que falta cuenta como no medido."}},
    {u"LINK_LOST",
     Information,
     {u"Conexão perdida: a porta desapareceu. Verifique o cabo da Box e conecte novamente.",
      u"Link lost: the port is gone. Check the cable of the Box and connect again.",
      u"Conexión perdida: el puerto desapareció. Verifique el cable de la Box y conecte de nuevo."}},
    // Exchange log: %1 the file, %2 the reason as the system words it
    {u"LOG_NOT_WRITTEN",
     Information,
     {u"O registro da comunicação não pôde ser gravado: %1\nLibere espaço ou dê permissão de escrita. A sessão "
      u"continua.\n%2",
      u"The exchange log could not be written: %1\nFree some space or give write permission. The session goes on.\n%2",
      u"No se pudo guardar el registro de la comunicación: %1\nLibere espacio o dé permiso de escritura. La sesión "
      u"continúa.\n%2"}},
    // As the grid of rails has always said it: the index runs straight into the word, and a blank ends it.
    {u"UNKNOWN_INDEX", None, {u"%1NOT ", u"%1NOT ", u"%1NOT "}},

    // Start
    {u"NO_DISPLAY",
     Information,
     {u"Não há tela gráfica: a janela não pode abrir. Use o programa de terminal, por exemplo:\n"
      u"prelt run buckldo --port \"sim:IP 6s\"",
      u"There is no graphical display, so the window cannot open. Use the terminal program, for example:\n"
      u"prelt run buckldo --port \"sim:IP 6s\"",
      u"No hay pantalla gráfica: la ventana no puede abrirse. Use el programa de terminal, por ejemplo:\n"
      u"prelt run buckldo --port \"sim:IP 6s\""}},
    // %1 the part that is not known, %2 what is
    {u"SIM_UNKNOWN",
     Information,
     {u"Telefone simulado não reconhecido: %1\nInforme um modelo e falhas, por exemplo \"sim:IP 7,ldo2=1200\".\n"
      u"Conhecidos: %2",
      u"Simulated phone not understood: %1\nName a model and faults, for example \"sim:IP 7,ldo2=1200\".\nKnown: %2",
      u"Teléfono simulado no reconocido: %1\nIndique un modelo y fallas, por ejemplo \"sim:IP 7,ldo2=1200\".\n"
      u"Conocidos: %2"}},
    {u"SIM_UNAVAILABLE",
     Critical,
     {u"O telefone simulado não pôde ser iniciado neste sistema.\n%1",
      u"The simulated phone could not be started on this system.\n%1",
      u"No se pudo iniciar el teléfono simulado en este sistema.\n%1"}},
};

std::span<const NoticeRow> workbenchMessages()
{
    return kWorkbenchMessages;
}
