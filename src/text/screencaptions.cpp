#include "captiontable.h"

// Columns: key, Portuguese, English, Spanish. Spellings that look odd ("dispoível", "NO MOSTRAN", the blank after
// "CORRIENTE") are those of the screens that technicians know.
static constexpr CaptionRow kScreenCaptions[] = {
    {u"Sem Medição", u"Sem Medição", u"No Reading", u"Sin lectura"},
    {u"Leitura", u"Leitura", u"Reading", u"Lectura"},
    {u"Referência", u"Referência", u"Reference", u"Referencia"},
    {u"Gravação", u"Gravação", u"Recording", u"Grabación"},
    {u"Gravar", u"Gravar", u"Record", u"Grabar"},
    {u"Malha", u"Malha", u"Net", u"Malla"},
    {u"Componente", u"Componente", u"Component", u"Componente"},
    {u"Classificação", u"Classificação", u"Sort by", u"Clasificación"},
    {u"Decimais", u"Decimais", u"Decimals", u"Decimales"},
    {u"Casas Decimais", u"Casas Decimais", u"Decimal places", u"Posiciones decimales"},
    {u"Tensões", u"Tensões", u"Power Supplies", u"Tensiones"},
    {u"Executar Leitura", u"Executar Leitura", u"Run Read", u"Ejecutar Lectura"},
    {u"Realizando Leitura...", u"Realizando Leitura...", u"Reading ...", u"Leer ..."},
    {u"Relatório", u"Relatório", u"Report", u"Reporte"},
    {u"Gerar Relatório PDF", u"Gerar Relatório PDF", u"Generate PDF Report", u"Generar reporte PDF"},
    {u"DIGITE SEU NOME", u"Digite o seu nome ou da sua empresa: (Opcional)",
     u"Enter your name or company name: (Optional)", u"Ingrese su nombre o el nombre de su empresa: (Opcional)"},

    {u"VAR", u"* Tensões de malhas VAR apresentam variações constantes nos valores",
     u"* VAR lines voltages have constant variations in values",
     u"* Las tensiones de mallas VAR presentan variaciones constantes en los valores"},
    {u"VAR2", u"* Malhas VAR não têm valor fixo de referência", u"* VAR lines have no fixed reference value",
     u"* Las mallas VAR no tienen un valor fijo de referencia"},
    {u"VAR3", u"* GPU ( BUCK 1 / 8 ) e * CÂMERA NÃO APRESENTAM VALORES EM MODO PURPLE",
     u"* GPU ( BUCK 1 / 8 ) and * CAMERA DO NOT DISPLAY VALUES IN PURPLE MODE",
     u"* GPU ( BUCK 1 / 8) y * CÁMARA NO MOSTRAN VALORES EN MODO PÚRPURA"},
    {u"VAR4", u"* GPU ( BUCK 1 / 8 ), * CÂMERA e * CPU 8/X (BUCK 0 CORRENTE) NÃO APRESENTAM VALORES EM MODO PURPLE",
     u"* GPU ( BUCK 1 / 8 ), * CAMERA AND * CPU 8/X (BUCK 0) DO NOT DISPLAY VALUES IN PURPLE MODE",
     u"* GPU ( BUCK 1 / 8 ), * CÁMARA y * CPU 8/X (BUCK 0 CORRIENTE) NO MUESTRAN VALORES EN MODO PÚRPURA"},
    {u"Buck6GPU",
     u"* Atenção: IP 6 / IP 6 Plus sempre apresenta resultado como 'FAIL' no buck1, mesmo estando OK, se tratar de "
     u"malha de GPU.",
     u"* Attention: IP 6 / IP 6 Plus always displays the result as FAIL on buck1, even if it is OK, if it is a GPU "
     u"line.",
     u"* Atención: IP 6 / IP 6 Plus siempre muestra el resultado como FAIL en buck1, aunque esté OK, por tratarse de "
     u"una malla de GPU."},
    {u"ANALISE COMPLETA", u"* Para uma análise mais completa é necessário aferir outros pinos e funções",
     u"* For a more complete analysis it is necessary to check other pins and functions",
     u"* Para un análisis más completo es necesario verificar otros pines y funciones"},
    {u"NORMAL", u"NORMAL", u"NORMAL", u"NORMAL"},
    {u"Baixa", u"Baixa", u"Low", u"Baja"},
    {u"Seleção de IC's a serem exibidos", u"Seleção de IC's a serem exibidos", u"Selection of ICs to be displayed",
     u"Selección de IC a mostrar"},

    {u"Bateria", u"Bateria", u"Battery", u"Batería"},
    {u"SAUDE DA BATERIA", u"SAÚDE DA BATERIA", u"BATTERY HEALTH", u"SALUD DE LA BATERIA"},
    {u"CICLOS DE CARGA", u"CICLOS DE CARGA", u"LOAD CYCLES", u"CICLOS DE CARGA"},
    {u"PORCENTAGEM DE CARGA", u"PORCENTAGEM DE CARGA", u"CHARGE PERCENTAGE", u"PORCENTAJE DE CARGA"},
    {u"CAPACIDADE DESIGNADA", u"CAPACIDADE DESIGNADA", u"DESIGNATED CAPACITY", u"CAPACIDAD DESIGNADA"},
    {u"CAPACIDADE ATUAL", u"CAPACIDADE ATUAL", u"CURRENT CAPACITY", u"CAPACIDAD ACTUAL"},
    {u"VOLTAGEM", u"VOLTAGEM", u"VOLTAGE", u"VOLTAJE"},
    {u"CORRENTE", u"CORRENTE", u"CURRENT", u"CORRIENTE "},
    {u"TEMPERATURA", u"TEMPERATURA", u"TEMPERATURE", u"TEMPERATURA"},
    {u"NAO_DISP_PARA_ESSE_MODELO", u"Função não dispoível para esse modelo", u"Function not available for this model",
     u"Función no disponible para este modelo"},

    {u"Testes IC's", u"Testes IC's", u"IC Tests", u"Pruebas de IC"},
    {u"Comunicação", u"Comunicação", u"Communication", u"Comunicación"},
    {u"COMUNICAÇÃO OK", u"Comunicação OK", u"Communication OK", u"Comunicación OK"},
    {u"COMUNICAÇÃO OFF", u"Sem Comunicação", u"No communication", u"Sin comunicacion"},
    {u"REPITA PROCESSO", u"REPITA PROCESSO", u"REPEAT THE PROCESS", u"REPITA EL PROCESO"},
    {u"COMANDO VÁLIDO SOMENTE PARA 7/X", u"COMANDO VÁLIDO SOMENTE PARA 7/X", u"COMMAND VALID FOR 7/X ONLY",
     u"COMANDO VÁLIDO SOLO PARA 7/X"},

    {u"Testes de Leitura I2C", u"Testes de Leitura I2C", u"I2C Reading Tests", u"Pruebas de lectura I2C"},
    {u"Falhas i2c", u"Falhas i2c", u"I2C failures", u"Fallas i2c"},
    {u"Nenhuma falha detectada em I2C", u"Nenhuma falha detectada em I2C", u"No failure detected on I2C",
     u"Ninguna falla detectada en I2C"},
    {u"Auto Teste", u"Auto Teste", u"Auto Test", u"Auto Prueba"},
    {u"Resultado do teste:", u"Resultado do teste:", u"Test result:", u"Resultado de la prueba:"},
    {u"Resultado do Auto Teste:", u"Resultado do Auto Teste:", u"Auto Test result:", u"Resultado de la Auto Prueba:"},
    {u"Teste Finalizados", u"Teste Finalizados", u"Tests Finished", u"Pruebas finalizadas"},
    {u"Visualizar Diagrama PDF", u"Visualizar Diagrama PDF", u"View PDF Diagram", u"Ver diagrama PDF"},

    {u"Testes de Comunicação RF", u"Testes de Comunicação RF", u"RF Communication Tests",
     u"Pruebas de comunicación RF"},
    {u"Propriedades", u"Propriedades", u"Properties", u"Propiedades"},
    {u"TensoesRF", u"Tensões RF", u"RF Voltage", u"RF Voltage"},
    {u"VALORES DE REFERÊNCIA RF", u"VALORES DE REFERÊNCIA RF", u"RF REFERENCE VALUES", u"VALORES DE REFERENCIA RF"},

    {u"Testes de Memória Nand", u"Testes de Memória Nand", u"Nand Memory Tests", u"Pruebas de memoria Nand"},
    {u"Tamanho da NAND", u"Tamanho da NAND", u"Size of Nand", u"Tamaño de la NAND"},
    {u"Identificação Única NAND", u"Identificação Única NAND", u"Unique NAND Identification",
     u"Identificación única NAND"},
    {u"Informações da NAND", u"Informações da NAND", u"NAND Information", u"Información de la NAND"},
    {u"PDFs Nand", u"PDFs Nand", u"Nand PDFs", u"PDF de Nand"},
    {u"Processo syscfg", u"Esse processo leva aproximadamente 45 segundos, deseja continuar?",
     u"This process takes approximately 45 seconds, do you want to continue?",
     u"Este proceso tarda aproximadamente 45 segundos, ¿desea continuar?"},
    {u"Não disponível para 6/6P", u"Não disponível para 6/6P", u"Not available for 6/6P", u"No disponible para 6/6P"},

    {u"Testes de Display", u"Testes de Display", u"Display Tests", u"Pruebas de pantalla"},
    {u"Cores", u"Cores", u"Colors", u"Colores"},
    {u"Resolução", u"Resolução", u"Resolution", u"Resolución"},
    {u"Nível", u"Nível", u"Level", u"Nivel"},
    {u"Testar Todos Níveis", u"Testar Todos Níveis", u"Test All Levels", u"Probar todos los niveles"},
    {u"Observe a tela", u"Observe a tela", u"Watch the screen", u"Observe la pantalla"},

    {u"Testes Adicionais", u"Testes Adicionais", u"Additional Tests", u"Pruebas adicionales"},
    {u"TESTE 15s", u"TESTE 15s", u"TEST 15s", u"PRUEBA 15s"},
    {u"TESTE 40s", u"TESTE 40s", u"TEST 40s", u"PRUEBA 40s"},
};

CaptionTable screenCaptions()
{
    return kScreenCaptions;
}
