<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
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
    <message>
        <source>Up</source>
        <translation>Seta para cima</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Seta para baixo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Seta para a esquerda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Seta para a direita</translation>
    </message>
</context>
<context>
    <name>SkyDocument</name>
    <message>
        <source>another program holds it locked</source>
        <translation>outro programa mantém-no bloqueado</translation>
    </message>
</context>
<context>
    <name>SkyFault</name>
    <message>
        <source>not an ordinary file</source>
        <translation>não é um ficheiro normal</translation>
    </message>
    <message>
        <source>longer than 64 KiB</source>
        <translation>ocupa mais de 64&#xa0;KiB</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>o ficheiro está vazio</translation>
    </message>
    <message>
        <source>the last line has no end: the file is half-written</source>
        <translation>a última linha não tem fim, o ficheiro está escrito a meio</translation>
    </message>
    <message>
        <source>the section&apos;s ] is missing</source>
        <translation>falta o ] da secção</translation>
    </message>
    <message>
        <source>unknown section [%1]</source>
        <translation>secção desconhecida [%1]</translation>
    </message>
    <message>
        <source>not of the form key = value</source>
        <translation>não tem a forma chave = valor</translation>
    </message>
    <message>
        <source>appears before any section</source>
        <translation>está antes da primeira secção</translation>
    </message>
    <message>
        <source>unknown key in [%1]</source>
        <translation>chave desconhecida em [%1]</translation>
    </message>
    <message>
        <source>duplicate key</source>
        <translation>aparece duas vezes</translation>
    </message>
    <message>
        <source>must lie between %1 and %2</source>
        <translation>deve estar entre %1 e %2</translation>
    </message>
    <message>
        <source>must be %1 or %2</source>
        <translation>deve ser %1 ou %2</translation>
    </message>
    <message>
        <source>must be %1, %2 or %3</source>
        <translation>deve ser %1, %2 ou %3</translation>
    </message>
    <message>
        <source>unknown operation: &quot;%1&quot;</source>
        <translation>não indica nenhuma operação: «%1»</translation>
    </message>
    <message>
        <source>must be %1 or a date from %2 to %3 like %4</source>
        <translation>deve ser %1 ou uma data de %2 a %3 como %4</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>deve ser um número inteiro</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>deve ser um número</translation>
    </message>
    <message>
        <source>must be 1 or 3</source>
        <translation>deve ser 1 ou 3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>linha %1: %2</translation>
    </message>
</context>
<context>
    <name>virtualmount</name>
    <message>
        <source>%1 too high</source>
        <translation>%1 demasiado alto</translation>
    </message>
    <message>
        <source>%1 too low</source>
        <translation>%1 demasiado baixo</translation>
    </message>
    <message>
        <source>%1 too far east</source>
        <translation>%1 demasiado a leste</translation>
    </message>
    <message>
        <source>%1 too far west</source>
        <translation>%1 demasiado a oeste</translation>
    </message>
    <message>
        <source>%1 up</source>
        <translation>%1 acima</translation>
    </message>
    <message>
        <source>%1 down</source>
        <translation>%1 abaixo</translation>
    </message>
    <message>
        <source>%1 east</source>
        <translation>%1 leste</translation>
    </message>
    <message>
        <source>%1 west</source>
        <translation>%1 oeste</translation>
    </message>
</context>
<context>
    <name>virtualmount::MountWindow</name>
    <message>
        <source>RA axis</source>
        <translation>Eixo de AR</translation>
    </message>
    <message>
        <source>Angle of the RA axis in degrees</source>
        <translation>Ângulo do eixo de AR em graus</translation>
    </message>
    <message>
        <source>Turns the RA axis; clockwise as the mount tracks</source>
        <translation>Roda o eixo de AR; no sentido horário, como no seguimento da montagem</translation>
    </message>
    <message>
        <source>&amp;Angle:</source>
        <translation>Ân&amp;gulo:</translation>
    </message>
    <message>
        <source>+%1°</source>
        <translation>+%1°</translation>
    </message>
    <message>
        <source>−%1°</source>
        <translation>−%1°</translation>
    </message>
    <message>
        <source>Turn the RA axis by %1 degrees</source>
        <translation>Rodar o eixo de AR %1 graus</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>&amp;Home</translation>
    </message>
    <message>
        <source>Turn the RA axis back to 0</source>
        <translation>Voltar a pôr o eixo de AR em 0</translation>
    </message>
    <message>
        <source>Trac&amp;king</source>
        <translation>&amp;Seguimento</translation>
    </message>
    <message>
        <source>The RA axis follows the sky</source>
        <translation>O eixo de AR segue o céu</translation>
    </message>
    <message>
        <source>▼ Down</source>
        <translation>▼ Descer</translation>
    </message>
    <message>
        <source>Altitude bolt: down, a quarter of a turn</source>
        <translation>Parafuso de altitude: descer um quarto de volta</translation>
    </message>
    <message>
        <source>fine ▼</source>
        <translation>fino ▼</translation>
    </message>
    <message>
        <source>Altitude bolt: down, finely</source>
        <translation>Parafuso de altitude: descer um pouco</translation>
    </message>
    <message>
        <source>▲ fine</source>
        <translation>▲ fino</translation>
    </message>
    <message>
        <source>Altitude bolt: up, finely</source>
        <translation>Parafuso de altitude: subir um pouco</translation>
    </message>
    <message>
        <source>Up ▲</source>
        <translation>Subir ▲</translation>
    </message>
    <message>
        <source>Altitude bolt: up, a quarter of a turn</source>
        <translation>Parafuso de altitude: subir um quarto de volta</translation>
    </message>
    <message>
        <source>◀ West</source>
        <translation>◀ Oeste</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, a quarter of a turn</source>
        <translation>Parafuso de azimute: para oeste, um quarto de volta</translation>
    </message>
    <message>
        <source>fine ◀</source>
        <translation>fino ◀</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, finely</source>
        <translation>Parafuso de azimute: para oeste, um pouco</translation>
    </message>
    <message>
        <source>▶ fine</source>
        <translation>▶ fino</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, finely</source>
        <translation>Parafuso de azimute: para leste, um pouco</translation>
    </message>
    <message>
        <source>East ▶</source>
        <translation>Leste ▶</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, a quarter of a turn</source>
        <translation>Parafuso de azimute: para leste, um quarto de volta</translation>
    </message>
    <message>
        <source>Turns of the altitude knob</source>
        <translation>Voltas do manípulo de altitude</translation>
    </message>
    <message>
        <source>Turns of the azimuth knob</source>
        <translation>Voltas do manípulo de azimute</translation>
    </message>
    <message>
        <source>Show or hide the remaining error</source>
        <translation>Mostrar ou ocultar o erro restante</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Repor</translation>
    </message>
    <message>
        <source>Reset to the values at the start</source>
        <translation>Pôr tudo como estava no início</translation>
    </message>
    <message>
        <source>Resets everything to the values at the start</source>
        <translation>Põe tudo como estava no início</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>Erro restante</translation>
    </message>
    <message>
        <source>Replace &amp;it</source>
        <translation>Substitu&amp;ir</translation>
    </message>
    <message>
        <source>Write a new sky file over the one with the fault</source>
        <translation>Escrever um novo ficheiro do céu no lugar do que tem o erro</translation>
    </message>
    <message>
        <source>Quorvandel Virtual Mount</source>
        <translation>Quorvandel – Montagem virtual</translation>
    </message>
    <message>
        <source>Hide the tru&amp;th</source>
        <translation>Ocultar a &amp;verdade</translation>
    </message>
    <message>
        <source>Show me the tru&amp;th</source>
        <translation>Mostrar a &amp;verdade</translation>
    </message>
    <message>
        <source>What is left of the error is hidden.</source>
        <translation>O erro restante está oculto.</translation>
    </message>
    <message>
        <source>The RA axis misses the pole by %1:
%2 and %3.</source>
        <translation>O eixo de AR desvia-se %1 do polo:
%2 e %3.</translation>
    </message>
    <message>
        <source>The sky file cannot be written: %1.</source>
        <translation>Não é possível escrever o ficheiro do céu: %1.</translation>
    </message>
    <message>
        <source>Fault in the sky file: %1. Nothing is written.</source>
        <translation>Erro no ficheiro do céu: %1. Nada é escrito.</translation>
    </message>
    <message>
        <source>Arrow keys turn the bolts, with Shift finely.
Ctrl+1 to Ctrl+6 turn the axis, Esc leaves a field.</source>
        <translation>As setas rodam os parafusos; com Shift, pouco a pouco.
Ctrl+1 a Ctrl+6 rodam o eixo; Esc sai de um campo.</translation>
    </message>
    <message>
        <source>Which time it is</source>
        <translation>Que horas são</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Agora</translation>
    </message>
    <message>
        <source>Runs from</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Fixed at</source>
        <translation>Parada em</translation>
    </message>
    <message>
        <source>Date and time, UTC</source>
        <translation>Data e hora, UTC</translation>
    </message>
    <message>
        <source>Site and time (UTC)</source>
        <translation>Local e hora (UTC)</translation>
    </message>
    <message>
        <source>&amp;Latitude</source>
        <translation>&amp;Latitude</translation>
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
        <source>Latitude in degrees</source>
        <translation>Latitude em graus</translation>
    </message>
    <message>
        <source>Latitude: north or south</source>
        <translation>Latitude: norte ou sul</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>L&amp;ongitude</translation>
    </message>
    <message>
        <source>East</source>
        <translation>Leste</translation>
    </message>
    <message>
        <source>West</source>
        <translation>Oeste</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>Longitude em graus</translation>
    </message>
    <message>
        <source>Longitude: east or west</source>
        <translation>Longitude: leste ou oeste</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Data</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Meteorologia</translation>
    </message>
    <message>
        <source>&amp;Clouds</source>
        <translation>&amp;Nuvens</translation>
    </message>
    <message>
        <source>Clouds in percent</source>
        <translation>Nuvens em percentagem</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>L&amp;ua</translation>
    </message>
    <message>
        <source>Glow of the moon in percent</source>
        <translation>Luz da lua em percentagem</translation>
    </message>
    <message>
        <source>&amp;Seeing</source>
        <translation>S&amp;eeing</translation>
    </message>
    <message>
        <source>Seeing in seconds of arc</source>
        <translation>Seeing em segundos de arco</translation>
    </message>
    <message>
        <source>%1″</source>
        <translation>%1″</translation>
    </message>
    <message>
        <source>&amp;Passing</source>
        <translation>&amp;Passageiras</translation>
    </message>
    <message>
        <source>Clouds come and go</source>
        <translation>As nuvens vão e vêm</translation>
    </message>
    <message>
        <source>Re&amp;fraction</source>
        <translation>Re&amp;fração</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Câmara</translation>
    </message>
    <message>
        <source>&amp;Unplugged</source>
        <translation>Sem ca&amp;bo</translation>
    </message>
    <message>
        <source>Slo&amp;w USB</source>
        <translation>USB len&amp;to</translation>
    </message>
    <message>
        <source>Altitude and azimuth bolts: turns</source>
        <translation>Parafusos de altitude e azimute: voltas</translation>
    </message>
    <message>
        <source>&amp;New exercise</source>
        <translation>Novo e&amp;xercício</translation>
    </message>
    <message>
        <source>Turns the bolts and the camera at random, to start again from there</source>
        <translation>Roda os parafusos e a câmara ao acaso, para recomeçar daí</translation>
    </message>
    <message>
        <source>Error of the star angles</source>
        <translation>Erro dos ângulos das estrelas</translation>
    </message>
    <message>
        <source>The age of the star angles (%1) alone makes %2.</source>
        <translation>A idade dos ângulos das estrelas (%1) vale %2.</translation>
    </message>
    <message>
        <source>The mount is already aligned.
“New exercise” moves it away from the pole.</source>
        <translation>A montagem já está alinhada.
“Novo exercício” afasta-a do polo.</translation>
    </message>
    <message>
        <source>West ▶</source>
        <translation>Oeste ▶</translation>
    </message>
    <message>
        <source>◀ East</source>
        <translation>◀ Leste</translation>
    </message>
</context>
</TS>
