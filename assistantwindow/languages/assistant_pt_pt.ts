<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Point the camera at the pole and press Connect.</source>
        <translation>Aponte a câmara ao polo e prima Ligar.</translation>
    </message>
    <message>
        <source>No camera was found. Plug it in: the search goes on.</source>
        <translation>Não foi encontrada nenhuma câmara. Ligue-a: a procura continua.</translation>
    </message>
    <message>
        <source>The camera library cannot be used: %1</source>
        <translation>Não é possível usar a biblioteca da câmara: %1</translation>
    </message>
    <message>
        <source>The camera %1 cannot be opened. It is tried again.</source>
        <translation>Não é possível abrir a câmara %1. Continua a tentar-se.</translation>
    </message>
    <message>
        <source>No picture for %1 s. Check the camera’s cable.</source>
        <translation>Sem imagem há %1 s. Verifique o cabo da câmara.</translation>
    </message>
    <message>
        <source>The camera has not answered for %1 s. Plug it in again.</source>
        <translation>A câmara não responde há %1 s. Ligue-a de novo.</translation>
    </message>
    <message>
        <source>Looking for the stars at the pole …</source>
        <translation>À procura das estrelas do polo…</translation>
    </message>
    <message>
        <source>No light at all. Take the cover off the lens.</source>
        <translation>Não há luz nenhuma. Retire a tampa da objetiva.</translation>
    </message>
    <message>
        <source>Too few stars (%1). Expose longer.</source>
        <translation>Poucas estrelas (%1). Exponha mais tempo.</translation>
    </message>
    <message>
        <source>The picture is too bright. Expose shorter.</source>
        <translation>A imagem está demasiado clara. Exponha menos tempo.</translation>
    </message>
    <message>
        <source>This is not the night sky. Point the camera at the pole.</source>
        <translation>Isto não é o céu noturno. Aponte a câmara ao polo.</translation>
    </message>
    <message>
        <source>The stars are %1 pixels wide. Focus the lens.</source>
        <translation>As estrelas têm %1 píxeis de largura. Foque a objetiva.</translation>
    </message>
    <message>
        <source>The stars are trailed. Let the mount come to rest.</source>
        <translation>As estrelas estão arrastadas. Deixe a montagem parar.</translation>
    </message>
    <message>
        <source>Too few stars: clouds? It goes on when they are back.</source>
        <translation>Poucas estrelas: nuvens? Continua quando voltarem.</translation>
    </message>
    <message>
        <source>%1 stars, but not those at the pole. Point the mount at it.</source>
        <translation>%1 estrelas, mas não as do polo. Aponte a montagem para ele.</translation>
    </message>
    <message>
        <source>The pole is %1° outside the picture. Follow the arrow.</source>
        <translation>O polo está %1° fora da imagem. Siga a seta.</translation>
    </message>
    <message>
        <source>These stars are of the other hemisphere. Check the latitude.</source>
        <translation>Estas estrelas são do outro hemisfério. Verifique a latitude.</translation>
    </message>
    <message>
        <source>The computer’s clock may be wrong. Check date and time.</source>
        <translation>O relógio do computador pode estar errado. Verifique a data e a hora.</translation>
    </message>
    <message>
        <source>The computer’s clock is behind. Set date and time.</source>
        <translation>O relógio do computador está atrasado. Acerte a data e a hora.</translation>
    </message>
    <message>
        <source>The clock was set by %1 s. Check date and time.</source>
        <translation>O relógio foi acertado em %1 s. Verifique a data e a hora.</translation>
    </message>
    <message>
        <source>Turn the RA axis, either way.</source>
        <translation>Rode o eixo de AR, em qualquer sentido.</translation>
    </message>
    <message>
        <source>Turn the RA axis further: %1 so far.</source>
        <translation>Continue a rodar o eixo de AR: %1 até agora.</translation>
    </message>
    <message>
        <source>Enough: the axis is known to %1. Now turn the bolts.</source>
        <translation>Chega: o eixo é conhecido a %1. Rode agora os parafusos.</translation>
    </message>
    <message>
        <source>The mount was moved. Turn the RA axis once more.</source>
        <translation>A montagem foi movida. Rode outra vez o eixo de AR.</translation>
    </message>
    <message>
        <source>The camera slipped on the axis. Turn the RA axis once more.</source>
        <translation>A câmara deslizou no eixo. Rode outra vez o eixo de AR.</translation>
    </message>
    <message>
        <source>Turn the bolts as the arrows say: %1 to go.</source>
        <translation>Rode os parafusos segundo as setas: faltam %1.</translation>
    </message>
    <message>
        <source>Nearly there. Turn the bolts a little at a time.</source>
        <translation>Quase lá. Rode os parafusos pouco a pouco.</translation>
    </message>
    <message>
        <source>Aligned. Tighten the bolts and watch the number.</source>
        <translation>Alinhado. Aperte os parafusos a olhar para o número.</translation>
    </message>
    <message>
        <source>Enter the site to see which way each bolt must go.</source>
        <translation>Indique o local para ver o sentido de cada parafuso.</translation>
    </message>
    <message>
        <source>So near to the Earth’s pole, follow the arrow in the picture.</source>
        <translation>Tão perto do polo da Terra, siga a seta na imagem.</translation>
    </message>
    <message>
        <source>Recording stopped: the folder %1 cannot be written.</source>
        <translation>Gravação parada: não é possível escrever na pasta %1.</translation>
    </message>
    <message>
        <source>The recording reached its limit and stopped.</source>
        <translation>A gravação atingiu o limite e parou.</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow is gone: %1 to go.</source>
        <translation>Rode os parafusos até a seta desaparecer: faltam %1.</translation>
    </message>
    <message>
        <source>The camera library cannot be used.</source>
        <translation>Não é possível usar a biblioteca da câmara.</translation>
    </message>
    <message>
        <source>Each minute that it is off turns altitude and azimuth by 0.25° about the pole; the total error hardly changes.</source>
        <translation>Cada minuto de erro roda altitude e azimute 0,25° em torno do polo; o erro total quase não muda.</translation>
    </message>
</context>
<context>
    <name>Aim</name>
    <message>
        <source>pole as the air shows it</source>
        <translation>polo como o ar o mostra</translation>
    </message>
    <message>
        <source>true pole, no refraction</source>
        <translation>polo verdadeiro, sem refração</translation>
    </message>
    <message>
        <source>true pole, refraction at %1 hPa, %2 °C</source>
        <translation>polo verdadeiro, refração a %1 hPa, %2 °C</translation>
    </message>
    <message>
        <source>refracted pole, at %1 hPa, %2 °C</source>
        <translation>polo refratado, a %1 hPa, %2 °C</translation>
    </message>
</context>
<context>
    <name>AssistantWindow</name>
    <message>
        <source>Quorvandel Assistant</source>
        <extracomment>The window&apos;s title</extracomment>
        <translation>Assistente Quorvandel</translation>
    </message>
</context>
<context>
    <name>Bolts</name>
    <message>
        <source>up</source>
        <translation>cima</translation>
    </message>
    <message>
        <source>down</source>
        <translation>baixo</translation>
    </message>
    <message>
        <source>east</source>
        <translation>leste</translation>
    </message>
    <message>
        <source>west</source>
        <translation>oeste</translation>
    </message>
    <message>
        <source>good</source>
        <translation>bom</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Stars recognised: %1 of %2</source>
        <translation>Estrelas reconhecidas: %1 de %2</translation>
    </message>
    <message>
        <source>Width of the stars: %1 pixels</source>
        <translation>Largura das estrelas: %1 píxeis</translation>
    </message>
    <message>
        <source>Aimed at: %1</source>
        <extracomment>Before a text such as: true pole, no refraction</extracomment>
        <translation>Alvo: %1</translation>
    </message>
</context>
<context>
    <name>Figures</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
</context>
<context>
    <name>LargePage</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Disconnect</source>
        <translation>Desligar</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Ligar</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Recomeçar</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Câmara</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Exposição</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Total error</source>
        <translation>Erro total</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Azimute</translation>
    </message>
    <message>
        <source>Enter the site</source>
        <translation>Indicar o local</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow in the picture is gone. With the site, the assistant says which way each bolt must go.</source>
        <translation>Rode os parafusos até a seta na imagem desaparecer. Com o local, o assistente diz o sentido de cada parafuso.</translation>
    </message>
    <message>
        <source>The camera must see the pole; it need not be in the middle.</source>
        <translation>A câmara tem de ver o polo, mas não no meio.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Relatório</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Large view</source>
        <translation>Vista grande</translation>
    </message>
    <message>
        <source>Live picture; a tap opens the large view</source>
        <translation>Imagem em direto; um toque abre a vista grande</translation>
    </message>
    <message>
        <source>%1 are enough, %2 if the axis is then known to %3. Further turning makes it more exact.</source>
        <translation>Bastam %1, ou %2 se o eixo já for conhecido a %3. Rodar mais torna-o mais exato.</translation>
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
    <name>QIODevice</name>
    <message>
        <source>Permission denied</source>
        <translation>Permissão negada</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Demasiados ficheiros abertos</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>O ficheiro ou a pasta não existe</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Sem espaço livre no dispositivo</translation>
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
    <name>Report</name>
    <message>
        <source>%1 an hour</source>
        <translation>%1 por hora</translation>
    </message>
    <message>
        <source>Error before</source>
        <translation>Erro antes</translation>
    </message>
    <message>
        <source>Error now</source>
        <translation>Erro agora</translation>
    </message>
    <message>
        <source>in altitude</source>
        <translation>em altitude</translation>
    </message>
    <message>
        <source>in azimuth</source>
        <translation>em azimute</translation>
    </message>
    <message>
        <source>Time taken</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Polar alignment</source>
        <translation>Alinhamento polar</translation>
    </message>
    <message>
        <source>Aimed at</source>
        <translation>Alvo</translation>
    </message>
    <message>
        <source>Drift in declination, anywhere, at most</source>
        <translation>Deriva em declinação, em qualquer lugar, no máximo</translation>
    </message>
    <message>
        <source>Angle of field rotation at most, at the equator and at declination 60°</source>
        <translation>Ângulo de rotação de campo no máximo, no equador e na declinação 60°</translation>
    </message>
    <message>
        <source>Date and site</source>
        <translation>Data e local</translation>
    </message>
    <message>
        <source>axis %1 above the pole</source>
        <translation>eixo %1 acima do polo</translation>
    </message>
    <message>
        <source>axis %1 below the pole</source>
        <translation>eixo %1 abaixo do polo</translation>
    </message>
    <message>
        <source>axis %1 east of the pole</source>
        <translation>eixo %1 a leste do polo</translation>
    </message>
    <message>
        <source>axis %1 west of the pole</source>
        <translation>eixo %1 a oeste do polo</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>The folder cannot be made.</source>
        <translation>Não é possível criar a pasta.</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Guardado: %1</translation>
    </message>
    <message>
        <source>Not saved: %1 The report is still here.</source>
        <translation>Não guardado: %1 O relatório continua aqui.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Relatório</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Guardar imagem</translation>
    </message>
    <message>
        <source>Save table</source>
        <translation>Guardar tabela</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Local</translation>
    </message>
    <message>
        <source>Pole</source>
        <translation>Polo</translation>
    </message>
    <message>
        <source>Night and sound</source>
        <translation>Noite e som</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>True pole</source>
        <translation>Polo verdadeiro</translation>
    </message>
    <message>
        <source>The Earth’s own axis: best for long exposures all over the sky.</source>
        <translation>O eixo da própria Terra: o melhor para longas exposições em todo o céu.</translation>
    </message>
    <message>
        <source>Refracted pole</source>
        <translation>Polo refratado</translation>
    </message>
    <message>
        <source>Where the air shows the pole: best for long exposures near the pole.</source>
        <translation>Onde o ar mostra o polo: o melhor para longas exposições perto do polo.</translation>
    </message>
    <message>
        <source>Air pressure, hPa</source>
        <translation>Pressão do ar, hPa</translation>
    </message>
    <message>
        <source>Temperature, °C</source>
        <translation>Temperatura, °C</translation>
    </message>
    <message>
        <source>Red light only</source>
        <translation>Só luz vermelha</translation>
    </message>
    <message>
        <source>Keeps eyes used to the dark: the window emits no green and no blue.</source>
        <translation>Poupa os olhos habituados ao escuro: a janela não emite verde nem azul.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Som</translation>
    </message>
    <message>
        <source>Pulses come faster as the error shrinks; a steady tone at the goal.</source>
        <translation>Os impulsos aceleram ao diminuir o erro; um tom contínuo na meta.</translation>
    </message>
    <message>
        <source>Speech</source>
        <translation>Voz</translation>
    </message>
    <message>
        <source>Says which bolt to turn, and how far.</source>
        <translation>Diz que parafuso rodar e quanto.</translation>
    </message>
    <message>
        <source>Speech is not available on this computer.</source>
        <translation>A voz não está disponível neste computador.</translation>
    </message>
    <message>
        <source>Goal: aligned below</source>
        <translation>Meta: alinhado abaixo de</translation>
    </message>
    <message>
        <source>Record the frames</source>
        <translation>Gravar as imagens</translation>
    </message>
    <message>
        <source>Saves at most one frame a second as a FITS file, for a report of a fault.</source>
        <translation>Guarda no máximo uma imagem por segundo em ficheiro FITS, para comunicar uma falha.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Limit of disk space, MB</source>
        <translation>Limite de espaço em disco, MB</translation>
    </message>
    <message>
        <source>Air pressure, hPa (0: no refraction)</source>
        <translation>Pressão do ar, hPa (0: sem refração)</translation>
    </message>
</context>
<context>
    <name>SitePanel</name>
    <message>
        <source>With the site, the assistant says which way each bolt must go.</source>
        <translation>Com o local, o assistente diz o sentido de cada parafuso.</translation>
    </message>
    <message>
        <source>Latitude: north positive, or N, S</source>
        <translation>Latitude: norte positivo, ou N, S</translation>
    </message>
    <message>
        <source>Longitude: east positive, or E, W</source>
        <translation>Longitude: leste positivo, ou E, W</translation>
    </message>
</context>
<context>
    <name>SkyPicture</name>
    <message>
        <source>Do not show this again until the next start</source>
        <translation>Não mostrar mais até ao próximo início</translation>
    </message>
</context>
<context>
    <name>Speech</name>
    <message>
        <source>1 degree</source>
        <translation>1 grau</translation>
    </message>
    <message numerus="yes">
        <source>%n degrees</source>
        <translation>
            <numerusform>%n grau</numerusform>
            <numerusform>%n graus</numerusform>
        </translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 minuto</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n minuto</numerusform>
            <numerusform>%n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n segundo</numerusform>
            <numerusform>%n segundos</numerusform>
        </translation>
    </message>
    <message>
        <source>aligned</source>
        <translation>alinhado</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A direction and a size, such as &quot;up, 2 minutes&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>Stage</name>
    <message>
        <source>Sky</source>
        <translation>Céu</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>Eixo</translation>
    </message>
    <message>
        <source>Bolts</source>
        <translation>Parafusos</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Câmara</translation>
    </message>
</context>
</TS>
