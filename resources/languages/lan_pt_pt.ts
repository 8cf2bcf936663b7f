<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Acerca do Quorvandel</translation>
    </message>
    <message>
        <source>Quorvandel V1.3.2.6, release 2016-08-10</source>
        <translation>Quorvandel V1.3.2.6, release 2016-08-10</translation>
    </message>
    <message>
        <source>© 2021 Quorvandel. All rights reserved.</source>
        <translation>© 2021 Quorvandel. Todos os direitos reservados.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Sítio web</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>English translation by the makers of Quorvandel.</source>
        <translation>Tradução portuguesa dos autores do Quorvandel.</translation>
    </message>
</context>
<context>
    <name>AstroRefractionDialog</name>
    <message>
        <source>Astronomical Refraction</source>
        <translation>Refração atmosférica</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>Latitude em graus</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>Longitude em graus</translation>
    </message>
    <message>
        <source>Unit of pressure</source>
        <translation>Unidade de pressão</translation>
    </message>
    <message>
        <source>P(kPa)</source>
        <translation>P (kPa)</translation>
    </message>
    <message>
        <source>P(hPa)</source>
        <translation>P (hPa)</translation>
    </message>
    <message>
        <source>Air pressure</source>
        <translation>Pressão atmosférica</translation>
    </message>
    <message>
        <source>T(℃)</source>
        <translation>T (°C)</translation>
    </message>
    <message>
        <source>Air temperature in degrees Celsius</source>
        <translation>Temperatura do ar em graus Celsius</translation>
    </message>
    <message>
        <source>Enable Astronomical Refraction Correction</source>
        <translation>Ativar correção da refração atmosférica</translation>
    </message>
</context>
<context>
    <name>FavoriteDialog</name>
    <message>
        <source>Favorite</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>Play Music</source>
        <translation>Reproduzir música</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvandel</source>
        <translation>Quorvandel</translation>
    </message>
    <message>
        <source>Region Selection</source>
        <translation>Seleção do hemisfério</translation>
    </message>
    <message>
        <source>North</source>
        <translation>Norte</translation>
    </message>
    <message>
        <source>South</source>
        <translation>Sul</translation>
    </message>
    <message>
        <source>Quorvandel Setting</source>
        <translation>Definições do Quorvandel</translation>
    </message>
    <message>
        <source>Exp(ms)</source>
        <translation>Exp. (ms)</translation>
    </message>
    <message>
        <source>Exposure in milliseconds</source>
        <translation>Exposição em milissegundos</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Ganho</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Tráfego</translation>
    </message>
    <message>
        <source>USB traffic</source>
        <translation>Tráfego USB</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Veloc.</translation>
    </message>
    <message>
        <source>Confirm Polaris/σ Oct</source>
        <translation>Confirmar Polar/σ Oct</translation>
    </message>
    <message>
        <source>Matching Template</source>
        <translation>Sobreposição do modelo</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rodar</translation>
    </message>
    <message>
        <source>Turn the template back by one degree</source>
        <translation>Rodar o modelo um grau para trás</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Template angle in degrees</source>
        <translation>Ângulo do modelo em graus</translation>
    </message>
    <message>
        <source>Turn the template on by one degree</source>
        <translation>Rodar o modelo um grau para a frente</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Rough Pole</source>
        <translation>Alinhamento aproximado</translation>
    </message>
    <message>
        <source>Axis Center</source>
        <translation>Centro do eixo</translation>
    </message>
    <message>
        <source>Chose the same star every times</source>
        <translation>Escolha sempre a mesma estrela</translation>
    </message>
    <message>
        <source>Lamp of star position 1</source>
        <translation>Indicador da posição 1 da estrela</translation>
    </message>
    <message>
        <source>Star Pos 1</source>
        <translation>Posição 1</translation>
    </message>
    <message>
        <source>Lamp of star position 2</source>
        <translation>Indicador da posição 2 da estrela</translation>
    </message>
    <message>
        <source>Star Pos 2</source>
        <translation>Posição 2</translation>
    </message>
    <message>
        <source>Lamp of star position 3</source>
        <translation>Indicador da posição 3 da estrela</translation>
    </message>
    <message>
        <source>Star Pos 3</source>
        <translation>Posição 3</translation>
    </message>
    <message>
        <source>Axis:</source>
        <translation>Eixo:</translation>
    </message>
    <message>
        <source>(0,0)</source>
        <translation>(0,0)</translation>
    </message>
    <message>
        <source>Current Polaris/σ Oct</source>
        <translation>Polar/σ Oct atual</translation>
    </message>
    <message>
        <source>Expected Polaris/σ Oct</source>
        <translation>Polar/σ Oct prevista</translation>
    </message>
    <message>
        <source>Precise Pole</source>
        <translation>Alinhamento preciso</translation>
    </message>
    <message>
        <source>Pole:</source>
        <translation>Polo:</translation>
    </message>
    <message>
        <source>Mark of the pole</source>
        <translation>Marca do polo</translation>
    </message>
    <message>
        <source>Mark of the axis</source>
        <translation>Marca do eixo</translation>
    </message>
    <message>
        <source>Enlarged picture of the pole star</source>
        <translation>Imagem ampliada da estrela polar</translation>
    </message>
    <message>
        <source>roiBigger_image</source>
        <translation>Imagem ampliada</translation>
    </message>
    <message>
        <source>Monitor Pole</source>
        <translation>Monitorização do polo</translation>
    </message>
    <message>
        <source>Reference Star A</source>
        <translation>Estrela de referência A</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Posição:</translation>
    </message>
    <message>
        <source>Reference Star B</source>
        <translation>Estrela de referência B</translation>
    </message>
    <message>
        <source>Start Monitor</source>
        <translation>Iniciar monitorização</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Imagem em direto</translation>
    </message>
    <message>
        <source>Star template</source>
        <translation>Modelo de estrelas</translation>
    </message>
    <message>
        <source>template_image</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Ferramentas</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Guardar como...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Ligar</translation>
    </message>
    <message>
        <source>Display Template</source>
        <translation>Mostrar modelo</translation>
    </message>
    <message>
        <source>Mono Style</source>
        <translation>Estilo monocromático</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Esticar histograma</translation>
    </message>
    <message>
        <source>Astronomical Refraction</source>
        <translation>Refração atmosférica</translation>
    </message>
    <message>
        <source>Manual Trace</source>
        <translation>Seguimento manual do polo</translation>
    </message>
    <message>
        <source>Unfreeze</source>
        <translation>Descongelar</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>75%</source>
        <translation>75%</translation>
    </message>
    <message>
        <source>50%</source>
        <translation>50%</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>日本語</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>русский</source>
        <translation>русский</translation>
    </message>
    <message>
        <source>français</source>
        <translation>français</translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Español</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>português</source>
        <translation>português</translation>
    </message>
    <message>
        <source>italiano</source>
        <translation>italiano</translation>
    </message>
    <message>
        <source>한국어</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>Quorvandel Manual</source>
        <translation>Manual do Quorvandel</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca do Quorvandel</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desligar</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informação</translation>
    </message>
    <message>
        <source>Not Found VELDIX Quorvandel equipment!</source>
        <translation>Não foi encontrado nenhum equipamento VELDIX Quorvandel!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as OpenVELDIX error!</source>
        <translation>Não é possível ligar ao Quorvandel devido a um erro de OpenVELDIX!</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as InitVELDIX error!</source>
        <translation>Não é possível ligar ao Quorvandel devido a um erro de InitVELDIX!</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Seems no star in this point, please try other point.</source>
        <translation>Parece não haver nenhuma estrela neste ponto; tente noutro ponto.</translation>
    </message>
    <message>
        <source>Can not get the Axis center, please click &apos;reset&apos; to re-find it.</source>
        <translation>Não é possível obter o centro do eixo; clique em «Repor» para o procurar de novo.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pergunta</translation>
    </message>
    <message>
        <source>Would you like to use the &apos;Axis center position&apos; recorded last time you used Quorvandel ?</source>
        <translation>Deseja utilizar a posição do centro do eixo guardada da última vez que utilizou o Quorvandel?</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around Polaris visable.</source>
        <translation>Ajuste os parâmetros à esquerda para que fiquem visíveis mais estrelas à volta da Estrela Polar.</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around σ Oct visable.</source>
        <translation>Ajuste os parâmetros à esquerda para que fiquem visíveis mais estrelas à volta de σ Oct.</translation>
    </message>
    <message>
        <source>Has setting up finished?</source>
        <translation>As definições estão concluídas?</translation>
    </message>
    <message>
        <source>Setting Finished</source>
        <translation>Definições concluídas</translation>
    </message>
    <message>
        <source>Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Faça duplo clique na Estrela Polar e utilize o controlo deslizante «Rodar» à esquerda para rodar o modelo até coincidir com as estrelas à volta da Estrela Polar.</translation>
    </message>
    <message>
        <source>Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Faça duplo clique em σ Oct e utilize o controlo deslizante «Rodar» à esquerda para rodar o modelo até coincidir com as estrelas à volta de σ Oct.</translation>
    </message>
    <message>
        <source>Does match success?</source>
        <translation>O modelo coincide?</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Sim, coincide</translation>
    </message>
    <message>
        <source>Choose a star other than Polaris and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>Escolha uma estrela que não seja a Estrela Polar e faça duplo clique nela na imagem. Memorize esta estrela: terá de a selecionar novamente nos passos seguintes (passo 1 de 3).</translation>
    </message>
    <message>
        <source>Choose a star other than σ Oct and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>Escolha uma estrela que não seja σ Oct e faça duplo clique nela na imagem. Memorize esta estrela: terá de a selecionar novamente nos passos seguintes (passo 1 de 3).</translation>
    </message>
    <message>
        <source>Rotate your mounts &apos;RA&apos; axis in the direction indicated by the arrow now at the top of the screen (rotate a minimum of 30 degree&apos;s).</source>
        <translation>Rode o eixo de AR da montagem no sentido indicado pela seta que aparece agora no topo do ecrã (rode no mínimo 30 graus).</translation>
    </message>
    <message>
        <source>Has rotation finished?</source>
        <translation>A rotação está concluída?</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>rotation Finished</source>
        <translation>Rotação concluída</translation>
    </message>
    <message>
        <source>Double click the same star again chosen in the previous step (Step 2 of 3).</source>
        <translation>Faça novamente duplo clique na mesma estrela que escolheu no passo anterior (passo 2 de 3).</translation>
    </message>
    <message>
        <source>Again, Rotate your mounts &apos;RA&apos; axis in the same direction at least 30 degrees.</source>
        <translation>Rode novamente o eixo de AR da montagem no mesmo sentido, pelo menos 30 graus.</translation>
    </message>
    <message>
        <source>Double click the same star one last time chosen in the previous 2 steps (Step 3 of 3).</source>
        <translation>Faça duplo clique uma última vez na mesma estrela que escolheu nos 2 passos anteriores (passo 3 de 3).</translation>
    </message>
    <message>
        <source>Return the &apos;RA&apos; axis to the &apos;Home&apos; position - Ensure your chosen star stays on the circle while your mount rotates to the PARK position.</source>
        <translation>Faça regressar o eixo de AR à posição inicial (Home) e confirme que a estrela escolhida se mantém sobre o círculo enquanto a montagem roda até à posição de estacionamento (Park).</translation>
    </message>
    <message>
        <source>Is the axis center correct?</source>
        <translation>O centro do eixo está correto?</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>Correto</translation>
    </message>
    <message>
        <source>Expected position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Posição prevista: faça duplo clique na Estrela Polar e utilize o controlo deslizante «Rodar» à esquerda para rodar o modelo até coincidir com as estrelas à volta da Estrela Polar.</translation>
    </message>
    <message>
        <source>Expected position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Posição prevista: faça duplo clique em σ Oct e utilize o controlo deslizante «Rodar» à esquerda para rodar o modelo até coincidir com as estrelas à volta de σ Oct.</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move Polaris into the center of the small Rotating circle now shown on the image.</source>
        <translation>Com os parafusos de altitude e azimute, leve a Estrela Polar até ao centro do pequeno círculo rotativo que aparece agora na imagem.</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move σ Oct into the center of the small Rotating circle now shown on the image.</source>
        <translation>Com os parafusos de altitude e azimute, leve σ Oct até ao centro do pequeno círculo rotativo que aparece agora na imagem.</translation>
    </message>
    <message>
        <source>Has adjustment finished?</source>
        <translation>O ajuste está concluído?</translation>
    </message>
    <message>
        <source>adjustment Finished</source>
        <translation>Ajuste concluído</translation>
    </message>
    <message>
        <source>Current position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>Posição atual: faça duplo clique na Estrela Polar e utilize o controlo deslizante «Rodar» à esquerda para rodar o modelo até coincidir com as estrelas à volta da Estrela Polar.</translation>
    </message>
    <message>
        <source>Current position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>Posição atual: faça duplo clique em σ Oct e utilize o controlo deslizante «Rodar» à esquerda para rodar o modelo até coincidir com as estrelas à volta de σ Oct.</translation>
    </message>
    <message>
        <source>Please click the &apos;Start Monitor&apos; button.</source>
        <translation>Clique no botão «Iniciar monitorização».</translation>
    </message>
    <message>
        <source>Use your Altitude and Azimuth bolts only to move the Pole rectangle on top of the Axis circle.</source>
        <translation>Utilize apenas os parafusos de altitude e azimute para levar o retângulo do polo até ficar sobre o círculo do eixo.</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Recomeçar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluir</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>The camera library cannot be used: see the log.</source>
        <translation>Biblioteca da câmara inutilizável: consulte o registo.</translation>
    </message>
    <message>
        <source>No camera is connected.</source>
        <translation>Nenhuma câmara ligada.</translation>
    </message>
    <message>
        <source>No picture for %1 s.</source>
        <translation>Sem imagem há %1 s.</translation>
    </message>
    <message>
        <source>The zoom in the settings file shows no picture.</source>
        <translation>O zoom do ficheiro de definições não mostra imagem.</translation>
    </message>
    <message>
        <source>No axis yet: pick one star at three RA angles first.</source>
        <translation>Ainda sem eixo: marque antes uma estrela em três ângulos de AR.</translation>
    </message>
    <message>
        <source>Monitoring without an alignment: press &apos;Restart&apos;.</source>
        <translation>Monitorização sem alinhamento: clique em «Recomeçar».</translation>
    </message>
    <message>
        <source>The pole star was not double clicked.</source>
        <translation>Falta o duplo clique na estrela polar.</translation>
    </message>
    <message>
        <source>The template was not placed on the pole star.</source>
        <translation>O modelo não foi colocado sobre a estrela polar.</translation>
    </message>
    <message>
        <source>Old place of the template: double click the pole star again.</source>
        <translation>Modelo no sítio antigo: faça duplo clique na estrela polar.</translation>
    </message>
    <message>
        <source>No star here.</source>
        <translation>Não há nenhuma estrela aqui.</translation>
    </message>
    <message>
        <source>No star here (pick %1 of 3).</source>
        <translation>Não há nenhuma estrela aqui (seleção %1 de 3).</translation>
    </message>
    <message>
        <source>Stars A and B lost.</source>
        <translation>Estrelas A e B perdidas.</translation>
    </message>
    <message>
        <source>Star A lost.</source>
        <translation>Estrela A perdida.</translation>
    </message>
    <message>
        <source>Star B lost.</source>
        <translation>Estrela B perdida.</translation>
    </message>
    <message>
        <source>The template does not fit: %1 of %2 rings hold a star.</source>
        <translation>O modelo não coincide: há estrela em %1 de %2 anéis.</translation>
    </message>
    <message>
        <source>The star moved by only %1 px between the picks.</source>
        <translation>A estrela só se moveu %1 px entre as seleções.</translation>
    </message>
    <message>
        <source>The axis turned by only %1° between the picks.</source>
        <translation>O eixo só rodou %1° entre as seleções.</translation>
    </message>
    <message>
        <source>The tracking dial still stands at %1°: reset it.</source>
        <translation>O seletor de seguimento ainda está em %1°: reponha-o.</translation>
    </message>
    <message>
        <source>The ring lies under the magnifier.</source>
        <translation>O círculo rotativo está sob a lupa.</translation>
    </message>
    <message>
        <source>Settings will not be kept: their file cannot be written.</source>
        <translation>As definições não serão guardadas: ficheiro sem escrita.</translation>
    </message>
    <message>
        <source>Settings will not be kept: Quorvandel.ini is not a file.</source>
        <translation>As definições não serão guardadas: Quorvandel.ini não é ficheiro.</translation>
    </message>
    <message>
        <source>Settings will not be kept: the disk is full.</source>
        <translation>As definições não serão guardadas: disco cheio.</translation>
    </message>
    <message>
        <source>Settings will not be kept: their folder cannot be written.</source>
        <translation>As definições não serão guardadas: pasta sem escrita.</translation>
    </message>
</context>
<context>
    <name>PoleTrackingDialog</name>
    <message>
        <source>Pole Tracking</source>
        <translation>Seguimento do polo</translation>
    </message>
    <message>
        <source>If the Pole was lost after used GOTO in the astrograph, then you can this to track.</source>
        <translation>Se o polo se perder após um GOTO do astrógrafo, utilize este comando para o voltar a seguir.</translation>
    </message>
    <message>
        <source>Tracking:</source>
        <translation>Seguimento:</translation>
    </message>
    <message>
        <source>Turn back by one degree</source>
        <translation>Rodar um grau para trás</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Tracking angle in degrees</source>
        <translation>Ângulo de seguimento em graus</translation>
    </message>
    <message>
        <source>Turn on by one degree</source>
        <translation>Rodar um grau para a frente</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>A zero</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Selecionar tudo</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Aumentar</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Diminuir</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Procurar em:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Pasta:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nome do ficheiro:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Ficheiros do tipo:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Recuar</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Pasta superior</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Criar uma pasta</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Vista em lista</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Vista detalhada</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 já existe.
Deseja substituí-lo?</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Voltar atrás</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Ir para a frente</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Ir para a pasta acima</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Criar uma pasta nova</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Mudar para a vista de lista</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Mudar para a vista de detalhes</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lista de locais e marcadores</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Ficheiros</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos os ficheiros (*)</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Mostrar: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Muda&amp;r o nome</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostrar os fic&amp;heiros ocultos</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>Pasta &amp;nova</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Pasta nova</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Tem a certeza de que quer eliminar «%1»?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>«%1» está protegido contra escrita.
Quer eliminá-lo mesmo assim?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Não foi possível eliminar a pasta.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidade</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Ficheiro %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Data de modificação</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nome de ficheiro inválido</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;O nome «%1» não pode ser usado.&lt;/b&gt;&lt;p&gt;Escolha outro, mais curto ou sem sinais de pontuação.</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Anular</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;lar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Deslocar até aqui</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Margem esquerda</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Margem direita</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fim</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Uma página para a esquerda</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Uma página para cima</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Uma página para a direita</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Uma página para baixo</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Deslocar para a esquerda</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Deslocar para cima</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Deslocar para a direita</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Deslocar para baixo</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
</context>
<context>
    <name>QSidebar</name>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copiar o endereço da &amp;ligação</translation>
    </message>
</context>
</TS>
