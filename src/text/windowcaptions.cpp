#include "captiontable.h"

// Columns: key, Portuguese, English, Spanish. "Nao Purple" and other unaccented or misspelled Portuguese is kept as
// technicians know it.
static constexpr CaptionRow kWindowCaptions[] = {
    {u"Conectado", u"Conectado", u"Connected", u"Conectado"},
    {u"Conectar", u"Conectar", u"Connect", u"Conectar"},
    {u"Conectando", u"Conectando", u"Connecting", u"Conectando"},
    {u"Comunicando", u"Comunicando", u"Communicating", u"Comunicando"},
    {u"Desconectar", u"Desconectar", u"Disconnect", u"Desconectar"},
    {u"Desconectado", u"Desconectado", u"Disconnected", u"Desconectado"},
    {u"Desconectando", u"Desconectando", u"Disconnecting", u"Desconectando"},
    {u"Executando Comando", u"Executando Comando", u"Executing Command", u"Ejecutando Comando"},
    {u"Processando comando", u"Processando comando", u"Processing command", u"Procesando comando"},
    {u"Aguarde...", u"Aguarde...", u"Please wait...", u"Espere..."},
    {u"Nao Purple", u"Nao Purple", u"Not in purple mode", u"No está en modo púrpura"},
    {u"Msg_Command", u"Se você estiver testando um IP7, repita o processo sem desconectar ele da BOX.",
     u"If you are testing an IP7, repeat the process without disconnecting it from the BOX.",
     u"Si está probando un IP7, repita el proceso sin desconectarlo del BOX."},

    {u"Porta COM", u"Porta COM", u"COM port", u"Puerto COM"},
    {u"Porta Serial COM", u"Porta Serial COM", u"Serial COM port", u"Puerto COM serial"},
    {u"Porta COM de comunicação com o dispositivo", u"Porta COM de comunicação com o dispositivo",
     u"COM port for communication with the device", u"Puerto COM de comunicación con el dispositivo"},
    {u"Porta 16",
     u"1. Tavimo Prelt funciona corretamente até a Porta Serial COM 16\n"
     u"2. Se o endereço da sua Box estiver acima do endereço de porta 16 altere-a para uma inferior\n"
     u"3. Se você precisa de ajuda temos um vídeo explicativo, um processo simples e rápido, clique em Sim para ver o "
     u"vídeo",
     u"1. Tavimo Prelt works correctly up to Serial COM Port 16\n"
     u"2. If the address of your Box is above port address 16, change it to a lower one\n"
     u"3. If you need help we have an explanatory video, a simple and quick process, click Yes to watch the video",
     u"1. Tavimo Prelt funciona correctamente hasta el puerto COM serie 16\n"
     u"2. Si la dirección de su caja está por encima de la dirección del puerto 16, cámbiela por una inferior\n"
     u"3. Si necesita ayuda tenemos un video explicativo, un proceso simple y rápido, haga clic en Sí para ver el "
     u"video"},

    {u"Modelo", u"Modelo", u"Model", u"Modelo"},
    {u"Modelo:", u"Modelo:", u"Model:", u"Modelo:"},
    {u"Box_Modelo", u"Box_Modelo", u"Box and model", u"Box y modelo"},
    {u"Modelo do dispositivo", u"Modelo do dispositivo", u"Device model", u"Modelo del dispositivo"},
    {u"Selecione o modelo do dispositivo", u"Selecione o modelo do dispositivo", u"Select the device model",
     u"Seleccione el modelo del dispositivo"},

    {u"Idioma", u"Idioma", u"Language", u"Idioma"},
    {u"Idiomas disponíveis", u"Idiomas disponíveis", u"Available languages", u"Idiomas disponibles"},
    {u"PORTUGUÊS", u"PORTUGUÊS", u"PORTUGUESE", u"PORTUGUÉS"},
    {u"INGLÊS", u"INGLÊS", u"ENGLISH", u"INGLÉS"},
    {u"ESPANHOL", u"ESPANHOL", u"SPANISH", u"ESPAÑOL"},

    {u"Sincronização", u"Sincronização", u"Synchronization", u"Sincronización"},
    {u"Dados UPDATE1", u"Foram encontrados dados salvos ou alterados por você na versão anterior.",
     u"Data saved or changed by you in the previous version was found.",
     u"Se encontraron datos guardados o modificados por usted en la versión anterior."},
    {u"Dados UPDATE2", u"Deseja importar esses dados para esta nova versão?",
     u"Do you want to import this data into this new version?", u"¿Desea importar estos datos a esta nueva versión?"},
    {u"SYNC_1", u"Sincronizando os dados da versão anterior", u"Synchronizing the data of the previous version",
     u"Sincronizando los datos de la versión anterior"},
    {u"SYNC_2", u"Dados da versão anterior sincronizados", u"Data of the previous version synchronized",
     u"Datos de la versión anterior sincronizados"},
    {u"ALTERADO", u"ALTERADO", u"CHANGED", u"MODIFICADO"},

    {u"Versão", u"Versão", u"Version", u"Versión"},
    {u"Atualizar", u"Atualizar", u"Update", u"Actualizar"},
    {u"Atualização", u"Atualização", u"Update", u"Actualización"},
    {u"Atualização disponível", u"Atualização disponível", u"Update available", u"Actualización disponible"},
    {u"MSG_UPDATE_OBRIGATORIA_TITULO", u"Atualização obrigatória", u"Required update", u"Actualización obligatoria"},
    {u"MSG_UPDATE_OBRIGATORIA", u"Esta versão não é mais atendida. Instale a versão nova para continuar.",
     u"This version is no longer served. Install the new version to continue.",
     u"Esta versión ya no está disponible. Instale la nueva versión para continuar."},
    {u"MANUTENCAO_SERVER", u"Servidor em manutenção. Tente novamente mais tarde.",
     u"The server is under maintenance. Try again later.", u"Servidor en mantenimiento. Inténtelo más tarde."},
    {u"Manutenção", u"Manutenção", u"Maintenance", u"Refacción"},

    {u"Sobre", u"Sobre", u"About", u"Acerca de"},
    {u"Autorais", u"Autorais", u"Copyright", u"Derechos de autor"},
    {u"Desenvolvido por", u"Desenvolvido por", u"Developed by", u"Desarrollado por"},
    {u"Suporte", u"Suporte", u"Support", u"Soporte"},
    {u"Suporte Remoto", u"Suporte Remoto", u"Remote Support", u"Soporte remoto"},
    {u"TermosYes", u"Li e aceito os termos", u"I have read and accept the terms", u"He leído y acepto los términos"},
    {u"TermosNo", u"Não aceito os termos", u"I do not accept the terms", u"No acepto los términos"},

    {u"Ativar", u"Ativar", u"Activate", u"Activar"},
    {u"Desativar", u"Desativar", u"Disable", u"Desactivar"},
    {u"Exibir", u"Exibir", u"Show", u"Mostrar"},
    {u"Ocultar", u"Ocultar", u"Hide", u"Ocultar"},
    {u"Cancelar", u"Cancelar", u"Cancel", u"Cancelar"},
    {u"Fechar", u"Fechar", u"Close", u"Cerrar"},
    {u"Desligar", u"Desligar", u"Turn off", u"Apagar"},
    {u"Testar", u"Testar", u"Test", u"Probar"},
    {u"Teste", u"Teste", u"Test", u"Prueba"},
    {u"Dados", u"Dados", u"Data", u"Datos"},
    {u"Grupo", u"Grupo", u"Group", u"Grupo"},
    {u"Outros", u"Outros", u"Others", u"Otros"},
    {u"Exemplos", u"Exemplos", u"Examples", u"Ejemplos"},
    {u"Informações", u"Informações", u"Information", u"Información"},
    {u"Informações adicionais", u"Informações adicionais", u"Additional information", u"Información adicional"},
};

CaptionTable windowCaptions()
{
    return kWindowCaptions;
}
