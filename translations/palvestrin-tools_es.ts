<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AllKeys</name>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>All keys</source>
        <translation>Todas las claves</translation>
    </message>
    <message>
        <source>Add setting…</source>
        <translation>Añadir ajuste…</translation>
    </message>
    <message>
        <source>Add block…</source>
        <translation>Añadir bloque…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Cambiar %1</translation>
    </message>
    <message>
        <source>Remove a block</source>
        <translation>Quitar un bloque</translation>
    </message>
    <message>
        <source>Remove the block “%1” with everything in it? You can undo this.</source>
        <translation>¿Quitar el bloque «%1» con todo su contenido? Se puede deshacer.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Quitar %1</translation>
    </message>
    <message>
        <source>Add a setting</source>
        <translation>Añadir un ajuste</translation>
    </message>
    <message>
        <source>Key:</source>
        <translation>Clave:</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Añadir %1</translation>
    </message>
    <message>
        <source>Add a block</source>
        <translation>Añadir un bloque</translation>
    </message>
    <message>
        <source>Name of the block:</source>
        <translation>Nombre del bloque:</translation>
    </message>
    <message>
        <source>A name is made of letters, digits, “_” and “-”.</source>
        <translation>Un nombre consta de letras, cifras, «_» y «-».</translation>
    </message>
</context>
<context>
    <name>CurrentSetting</name>
    <message>
        <source>Choose a setting: its meaning is explained here, and what it does is marked on the paper.</source>
        <translation>Elija un ajuste: aquí se explica, y en el papel se marca lo que hace.</translation>
    </message>
    <message>
        <source>No program reads this.</source>
        <translation>Ningún programa lo lee.</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Predeterminado: %1</translation>
    </message>
    <message>
        <source>The settings of: %1</source>
        <translation>Los ajustes de: %1</translation>
    </message>
    <message>
        <source>Holds the settings of all documents and programs.</source>
        <translation>Contiene los ajustes de todos los documentos y programas.</translation>
    </message>
</context>
<context>
    <name>FileKeeper</name>
    <message>
        <source>Another program has changed the file.</source>
        <translation>Otro programa ha cambiado el archivo.</translation>
    </message>
    <message>
        <source>Show what differs…</source>
        <translation>Mostrar las diferencias…</translation>
    </message>
    <message>
        <source>%1 You can look and try here, but not save.</source>
        <translation>%1 Aquí puede mirar y probar, pero no guardar.</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>El archivo no se puede leer</translation>
    </message>
    <message>
        <source>Merge with the file</source>
        <translation>Combinar con el archivo</translation>
    </message>
    <message>
        <source>Reload the file</source>
        <translation>Recargar el archivo</translation>
    </message>
    <message>
        <source>The file was read again. Undo brings your changes back.</source>
        <translation>El archivo se ha leído de nuevo. «Deshacer» recupera sus cambios.</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>No guardado</translation>
    </message>
    <message>
        <source>%1 cannot be stored as it stands. %2</source>
        <translation>%1 no se puede guardar así. %2</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>The block “%1”: only the first block on top is written.</source>
        <translation>El bloque «%1»: solo se escribe el primer bloque.</translation>
    </message>
    <message>
        <source>Saving loses something</source>
        <translation>Al guardar se pierde algo</translation>
    </message>
    <message>
        <source>Saving loses what the details name. A backup keeps the file as it was.</source>
        <translation>Al guardar se pierde lo que se indica en los detalles. Una copia conserva el archivo anterior.</translation>
    </message>
    <message>
        <source>Nothing has been changed, and nothing was written.</source>
        <translation>No se ha cambiado nada ni se ha escrito nada.</translation>
    </message>
    <message>
        <source>another program is changing the file; save again when it is done</source>
        <translation>otro programa está cambiando el archivo; guarde de nuevo cuando termine</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 guardado</translation>
    </message>
    <message>
        <source>Saved. The file as it was is kept as %1</source>
        <translation>Guardado. El archivo anterior se conserva como %1</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>¿Guardar los cambios de %1?</translation>
    </message>
    <message>
        <source>The file is gone. Save writes it anew.</source>
        <translation>El archivo ya no está. «Guardar» lo escribe de nuevo.</translation>
    </message>
</context>
<context>
    <name>FirstUse</name>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 characters on a line</source>
        <translation>%1 caracteres por línea</translation>
    </message>
    <message>
        <source>Kind of business</source>
        <translation>Tipo de establecimiento</translation>
    </message>
    <message>
        <source>Set up your paper</source>
        <translation>Configure su papel</translation>
    </message>
    <message>
        <source>There are no settings yet. Choose what comes nearest: the paper on the right shows it. Everything can be changed afterwards.</source>
        <translation>Aún no hay ajustes. Elija lo que más se parezca: el papel de la derecha lo muestra. Después se puede cambiar todo.</translation>
    </message>
    <message>
        <source>Use these settings</source>
        <translation>Usar estos ajustes</translation>
    </message>
    <message>
        <source>Start empty</source>
        <translation>Empezar de cero</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Set up a paper</source>
        <translation>Configurar un papel</translation>
    </message>
    <message>
        <source>Choose a document on the left. Its settings are in the middle, its paper is on the right, printed by the real program. Every change shows there at once.</source>
        <translation>Elija un documento a la izquierda. En el centro están sus ajustes y a la derecha su papel, impreso por el propio programa de impresión. Cada cambio se ve allí al instante.</translation>
    </message>
    <message>
        <source>See what a setting does</source>
        <translation>Ver qué hace un ajuste</translation>
    </message>
    <message>
        <source>Go to a field: its meaning is explained below, and the rows that it concerns are marked on the paper. What runs over the edge is red.</source>
        <translation>Vaya a un campo: debajo se explica su significado y en el papel se marcan las líneas a las que afecta. Lo que se sale del borde está en rojo.</translation>
    </message>
    <message>
        <source>Nothing is lost</source>
        <translation>Nada se pierde</translation>
    </message>
    <message>
        <source>Nothing is written before you save. Undo takes back every step, and the file as it was stays beside the new one.</source>
        <translation>No se escribe nada antes de guardar. «Deshacer» retrocede cada paso, y el archivo anterior queda junto al nuevo.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>How it works</source>
        <translation>Cómo funciona</translation>
    </message>
</context>
<context>
    <name>MergeDialog</name>
    <message>
        <source>not set</source>
        <translation>sin definir</translation>
    </message>
    <message>
        <source>The file has changed</source>
        <translation>El archivo ha cambiado</translation>
    </message>
    <message>
        <source>Another program has changed the file. Tick the settings that are to be as they are in the file; the others stay as they are here.</source>
        <translation>Otro programa ha cambiado el archivo. Marque los ajustes que se toman del archivo; los demás quedan como están aquí.</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Aquí</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>En el archivo</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>Ajustes distintos</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>Take all from the file</source>
        <translation>Tomar todo del archivo</translation>
    </message>
    <message>
        <source>This can only be as it is in the file.</source>
        <translation>Esto solo puede quedar como está en el archivo.</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Documents and parts</source>
        <translation>Documentos y partes</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Aplicación</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>All keys</source>
        <translation>Todas las claves</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>cambiado</translation>
    </message>
    <message>
        <source>something is wrong</source>
        <translation>algo está mal</translation>
    </message>
</context>
<context>
    <name>PaperPane</name>
    <message>
        <source>Smaller</source>
        <translation>Más pequeño</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Más grande</translation>
    </message>
    <message>
        <source>Fit the paper to the window</source>
        <translation>Ajustar el papel a la ventana</translation>
    </message>
    <message>
        <source>Copy the paper as text</source>
        <translation>Copiar el papel como texto</translation>
    </message>
    <message>
        <source>Print job</source>
        <translation>Trabajo de impresión</translation>
    </message>
    <message>
        <source>The print job that is shown on the paper</source>
        <translation>El trabajo de impresión que se ve en el papel</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>Ejemplo: %1</translation>
    </message>
    <message>
        <source>A job of your own…</source>
        <translation>Un trabajo propio…</translation>
    </message>
    <message>
        <source>A job of your own</source>
        <translation>Un trabajo propio</translation>
    </message>
    <message>
        <source>Print jobs (*.xml);;All files (*)</source>
        <translation>Trabajos de impresión (*.xml);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The job prints nothing.</source>
        <translation>El trabajo no imprime nada.</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Save the paper as a picture</source>
        <translation>Guardar el papel como imagen</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>Imagen PNG (*.png)</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Documento PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>No guardado</translation>
    </message>
</context>
<context>
    <name>PaperTask</name>
    <message>
        <source>There is no room for the preview in %1.</source>
        <translation>No hay sitio para la vista previa en %1.</translation>
    </message>
    <message>
        <source>The job takes too long to be shown.</source>
        <translation>El trabajo tarda demasiado en mostrarse.</translation>
    </message>
    <message>
        <source>The program that prints cannot be started: %1</source>
        <translation>El programa que imprime no se puede iniciar: %1</translation>
    </message>
    <message>
        <source>The program that prints has crashed.</source>
        <translation>El programa que imprime ha fallado.</translation>
    </message>
</context>
<context>
    <name>PaperView</name>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
</context>
<context>
    <name>Register</name>
    <message>
        <source>To the cash register</source>
        <translation>A la caja registradora</translation>
    </message>
    <message>
        <source>, with a modifier that is no number</source>
        <translation>, con una variación que no es un número</translation>
    </message>
    <message>
        <source>, less %1</source>
        <translation>, menos %1</translation>
    </message>
    <message>
        <source>, plus %1</source>
        <translation>, más %1</translation>
    </message>
    <message>
        <source>sale: %1 x %2 at %3</source>
        <translation>venta: %1 x %2 a %3</translation>
    </message>
    <message>
        <source>no quantity</source>
        <translation>sin cantidad</translation>
    </message>
    <message>
        <source>an item without a name</source>
        <translation>un artículo sin nombre</translation>
    </message>
    <message>
        <source>no department</source>
        <translation>sin departamento</translation>
    </message>
    <message>
        <source>department %1</source>
        <translation>departamento %1</translation>
    </message>
    <message>
        <source>no number</source>
        <translation>no es un número</translation>
    </message>
    <message>
        <source>reduction</source>
        <translation>rebaja</translation>
    </message>
    <message>
        <source>discount</source>
        <translation>descuento</translation>
    </message>
    <message>
        <source>cash</source>
        <translation>efectivo</translation>
    </message>
    <message>
        <source>credit card</source>
        <translation>tarjeta de crédito</translation>
    </message>
    <message>
        <source>cheque</source>
        <translation>cheque</translation>
    </message>
    <message>
        <source>not paid</source>
        <translation>sin pagar</translation>
    </message>
    <message>
        <source>The register will show %1</source>
        <translation>La caja mostrará %1</translation>
    </message>
    <message>
        <source>: sales %1</source>
        <translation>: ventas %1</translation>
    </message>
    <message>
        <source>, less reductions %1</source>
        <translation>, menos rebajas %1</translation>
    </message>
    <message>
        <source>, less discount %1</source>
        <translation>, menos descuento %1</translation>
    </message>
    <message>
        <source>Not counted: 1 command that could not be read.</source>
        <translation>Sin contar: 1 orden ilegible.</translation>
    </message>
    <message>
        <source>Not counted: %1 commands that could not be read.</source>
        <translation>Sin contar: %1 órdenes ilegibles.</translation>
    </message>
    <message>
        <source>Settled by %1</source>
        <translation>Pagado con: %1</translation>
    </message>
    <message>
        <source>%1 less than the sum.</source>
        <translation>%1 menos que el total.</translation>
    </message>
    <message>
        <source>%1 more than the sum.</source>
        <translation>%1 más que el total.</translation>
    </message>
</context>
<context>
    <name>ResultList</name>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Settings found</source>
        <translation>Ajustes encontrados</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>No setting has “%1” in its name, its explanation or its value.</source>
        <translation>Ningún ajuste tiene «%1» en su nombre, su explicación o su valor.</translation>
    </message>
    <message>
        <source>Nothing has been changed.</source>
        <translation>No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Todo está bien.</translation>
    </message>
</context>
<context>
    <name>SearchBar</name>
    <message>
        <source>Changed</source>
        <translation>Cambiados</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemas</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Buscar un ajuste</translation>
    </message>
    <message>
        <source>Looks in names, explanations, keys and values</source>
        <translation>Busca en nombres, explicaciones, claves y valores</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>Problemas (%1)</translation>
    </message>
</context>
<context>
    <name>SettingField</name>
    <message>
        <source>default</source>
        <translation>predeterminado</translation>
    </message>
    <message>
        <source>Reset to the default</source>
        <translation>Restablecer el valor predeterminado</translation>
    </message>
    <message>
        <source>Reset %1 to the default</source>
        <translation>Restablecer %1 al valor predeterminado</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de datos</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programas</translation>
    </message>
    <message>
        <source>Receipt printer</source>
        <translation>Impresora de tickets</translation>
    </message>
    <message>
        <source>characters</source>
        <translation>caracteres</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Ancho de línea</translation>
    </message>
    <message>
        <source>Quantity column</source>
        <translation>Columna de cantidad</translation>
    </message>
    <message>
        <source>Price column</source>
        <translation>Columna de precio</translation>
    </message>
    <message>
        <source>Total column</source>
        <translation>Columna de importe</translation>
    </message>
    <message>
        <source>Item name</source>
        <translation>Nombre del artículo</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Margen superior</translation>
    </message>
    <message>
        <source>Height of the top margin</source>
        <translation>Altura del margen</translation>
    </message>
    <message>
        <source>lines</source>
        <translation>líneas</translation>
    </message>
    <message>
        <source>Header lines</source>
        <translation>Líneas de cabecera</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Empresa</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Dirección de entrega</translation>
    </message>
    <message>
        <source>Billing address</source>
        <translation>Dirección de facturación</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Licence number</source>
        <translation>NIF-IVA</translation>
    </message>
    <message>
        <source>Fiscal code</source>
        <translation>NIF</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Crédito</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Mesa</translation>
    </message>
    <message>
        <source>Waiter</source>
        <translation>Camarero</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>copies</source>
        <translation>copias</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logotipo</translation>
    </message>
    <message>
        <source>Open the cash drawer</source>
        <translation>Abrir el cajón portamonedas</translation>
    </message>
    <message>
        <source>Rows per page</source>
        <translation>Líneas por página</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>líneas</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Translation file</source>
        <translation>Archivo de traducción</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Nivel mínimo</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre del archivo</translation>
    </message>
    <message>
        <source>Database name</source>
        <translation>Nombre de la base de datos</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Folder of the programs</source>
        <translation>Carpeta de los programas</translation>
    </message>
    <message>
        <source>Logo picture</source>
        <translation>Imagen del logotipo</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>Cabecera</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Pedido</translation>
    </message>
    <message>
        <source>Without effect</source>
        <translation>Sin efecto</translation>
    </message>
    <message>
        <source>You have no permission to change this file.</source>
        <translation>No tiene permiso para modificar este archivo.</translation>
    </message>
    <message>
        <source>Its folder cannot be made: a file is in the way.</source>
        <translation>No se puede crear su carpeta: hay un archivo en su lugar.</translation>
    </message>
    <message>
        <source>You have no permission to write in its folder.</source>
        <translation>No tiene permiso para escribir en su carpeta.</translation>
    </message>
    <message>
        <source>Restaurant</source>
        <translation>Restaurante</translation>
    </message>
    <message>
        <source>Kitchen tickets with table and waiter, bills and receipts.</source>
        <translation>Comandas con mesa y camarero, precuentas y recibos.</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Bar</translation>
    </message>
    <message>
        <source>Short receipts with date and time; the drawer opens.</source>
        <translation>Recibos cortos con fecha y hora; el cajón se abre.</translation>
    </message>
    <message>
        <source>Shop</source>
        <translation>Tienda</translation>
    </message>
    <message>
        <source>Receipts without tables, and invoices and delivery notes for customers.</source>
        <translation>Recibos sin mesas, y facturas y albaranes para los clientes.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no key; a key is two or more names of letters, digits, &apos;_&apos; and &apos;-&apos;, with dots between</source>
        <translation>«%1» no es una clave; una clave son dos o más nombres de letras, cifras, «_» y «-», separados por puntos</translation>
    </message>
    <message>
        <source>a value cannot hold &apos;%1&apos;; leave it out</source>
        <translation>un valor no puede contener «%1»; quítelo</translation>
    </message>
    <message>
        <source>a value has room for %1 bytes, this one has %2; shorten it</source>
        <translation>un valor admite %1 bytes como máximo; este tiene %2; acórtelo</translation>
    </message>
    <message>
        <source>give a whole number from 0 to %1</source>
        <translation>indique un número entero de 0 a %1</translation>
    </message>
    <message>
        <source>give true or false, in small letters</source>
        <translation>indique true o false, en minúsculas</translation>
    </message>
    <message>
        <source>give one of %1</source>
        <translation>indique uno de estos: %1</translation>
    </message>
    <message>
        <source>give %1</source>
        <translation>indique %1</translation>
    </message>
    <message>
        <source>or</source>
        <translation>o</translation>
    </message>
    <message>
        <source>%1 is not set</source>
        <translation>%1 no está definido</translation>
    </message>
    <message>
        <source>%1, counts as %2</source>
        <translation>%1, cuenta como %2</translation>
    </message>
    <message>
        <source>%1; when missing: %2</source>
        <translation>%1; si falta: %2</translation>
    </message>
    <message>
        <source>read by: %1</source>
        <translation>leído por: %1</translation>
    </message>
    <message>
        <source>consulted by no print method</source>
        <translation>no lo usa ningún método de impresión</translation>
    </message>
    <message>
        <source>consulted by: %1</source>
        <translation>usado por: %1</translation>
    </message>
    <message>
        <source>&quot;palvestrin config list&quot; lists the settings that programs read</source>
        <translation>«palvestrin config list» enumera los ajustes que leen los programas</translation>
    </message>
    <message>
        <source>the block %1 is never looked into: only the first one of a file is</source>
        <translation>el bloque %1 no se lee nunca: solo se lee el primero de un archivo</translation>
    </message>
    <message>
        <source>move it to the front, and what is there into it</source>
        <translation>póngalo al principio, y dentro de él lo que hay allí</translation>
    </message>
    <message>
        <source>move its settings into the first block</source>
        <translation>mueva sus ajustes al primer bloque</translation>
    </message>
    <message>
        <source>no program looks into the block %1</source>
        <translation>ningún programa lee el bloque %1</translation>
    </message>
    <message>
        <source>it belongs into the block &quot;%1&quot;</source>
        <translation>va en el bloque «%1»</translation>
    </message>
    <message>
        <source>the block %1 is empty, which is the same as none</source>
        <translation>el bloque %1 está vacío, que es lo mismo que ninguno</translation>
    </message>
    <message>
        <source>%1 stands outside the blocks, where no program looks</source>
        <translation>%1 está fuera de los bloques, donde ningún programa lee</translation>
    </message>
    <message>
        <source>move it into a block of the block &quot;%1&quot;</source>
        <translation>muévalo a un bloque del bloque «%1»</translation>
    </message>
    <message>
        <source>no program reads %1</source>
        <translation>ningún programa lee %1</translation>
    </message>
    <message>
        <source>a name has no dots: put %1 into the block %2</source>
        <translation>un nombre no tiene puntos: ponga %1 en el bloque %2</translation>
    </message>
    <message>
        <source>it belongs into a block, such as %1</source>
        <translation>va en un bloque, como %1</translation>
    </message>
    <message>
        <source>did you mean %1?</source>
        <translation>¿quería decir %1?</translation>
    </message>
    <message>
        <source>%1 is given twice: this value %2 does not count, the one in line %3 does</source>
        <translation>%1 aparece dos veces: este valor %2 no cuenta, cuenta el de la línea %3</translation>
    </message>
    <message>
        <source>remove one of them</source>
        <translation>quite uno de ellos</translation>
    </message>
    <message>
        <source>on the paper &quot;%1&quot;, %2 and %3 more take %4 of %5 characters: %6</source>
        <translation>en el papel «%1», %2 y %3 más ocupan %4 de %5 caracteres: %6</translation>
    </message>
    <message>
        <source>descriptions are not cut, and run over the edge</source>
        <translation>las descripciones no se cortan y se salen del borde</translation>
    </message>
    <message>
        <source>nothing is left for the description</source>
        <translation>no queda nada para la descripción</translation>
    </message>
    <message>
        <source>make the paper wider or the columns narrower</source>
        <translation>haga el papel más ancho o las columnas más estrechas</translation>
    </message>
    <message>
        <source>%1 does nothing while %2 is off</source>
        <translation>%1 no hace nada mientras %2 esté desactivado</translation>
    </message>
    <message>
        <source>set %1 to &quot;true&quot;, or take this one out</source>
        <translation>ponga %1 en «true», o quite este</translation>
    </message>
    <message>
        <source>%1 changes nothing on paper</source>
        <translation>%1 no cambia nada en el papel</translation>
    </message>
    <message>
        <source>none of the documents of this block asks for it</source>
        <translation>ningún documento de este bloque lo usa</translation>
    </message>
    <message>
        <source>%1 is no sensible value for %2</source>
        <translation>%1 no es un valor válido para %2</translation>
    </message>
    <message>
        <source>%1 counts as %2 for %3</source>
        <translation>%1 cuenta como %2 para %3</translation>
    </message>
    <message>
        <source>Kitchen ticket</source>
        <translation>Comanda</translation>
    </message>
    <message>
        <source>Bill</source>
        <translation>Precuenta</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Recibo</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Factura</translation>
    </message>
    <message>
        <source>Delivery note</source>
        <translation>Albarán</translation>
    </message>
    <message>
        <source>Fiscal receipt</source>
        <translation>Ticket fiscal</translation>
    </message>
    <message>
        <source>Empty document</source>
        <translation>Documento vacío</translation>
    </message>
    <message>
        <source>Summary receipt</source>
        <translation>Recibo recapitulativo</translation>
    </message>
    <message>
        <source>Summary invoice</source>
        <translation>Factura recapitulativa</translation>
    </message>
    <message>
        <source>Summary fiscal receipt</source>
        <translation>Ticket fiscal recapitulativo</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>List of items sold</source>
        <translation>Artículos vendidos</translation>
    </message>
    <message>
        <source>Statement of account</source>
        <translation>Estado de cuenta</translation>
    </message>
    <message>
        <source>characters of the quantity column</source>
        <translation>caracteres de la columna de cantidad</translation>
    </message>
    <message>
        <source>characters of the unit price column, and of the amount in a statement of account</source>
        <translation>caracteres de la columna del precio unitario, y del importe en un estado de cuenta</translation>
    </message>
    <message>
        <source>characters of the line total column</source>
        <translation>caracteres de la columna del importe de la línea</translation>
    </message>
    <message>
        <source>characters of a line</source>
        <translation>caracteres de una línea</translation>
    </message>
    <message>
        <source>rows of a page; a receipt printer fills up the last one</source>
        <translation>líneas de una página; una impresora de tickets completa la última</translation>
    </message>
    <message>
        <source>no effect: each document has its own layout</source>
        <translation>sin efecto: cada documento tiene su propia disposición</translation>
    </message>
    <message>
        <source>print the top margin</source>
        <translation>imprime el margen superior</translation>
    </message>
    <message>
        <source>print the free header lines</source>
        <translation>imprime las líneas libres de cabecera</translation>
    </message>
    <message>
        <source>print the logo, on a receipt printer</source>
        <translation>imprime el logotipo, en una impresora de tickets</translation>
    </message>
    <message>
        <source>print the company&apos;s lines</source>
        <translation>imprime las líneas de la empresa</translation>
    </message>
    <message>
        <source>print the delivery address, with printCustomer</source>
        <translation>imprime la dirección de entrega, con printCustomer</translation>
    </message>
    <message>
        <source>print the billing address, with printCustomer</source>
        <translation>imprime la dirección de facturación, con printCustomer</translation>
    </message>
    <message>
        <source>print the customer&apos;s telephone, with printCustomer</source>
        <translation>imprime el teléfono del cliente, con printCustomer</translation>
    </message>
    <message>
        <source>print the order&apos;s date</source>
        <translation>imprime la fecha del pedido</translation>
    </message>
    <message>
        <source>print the order&apos;s time</source>
        <translation>imprime la hora del pedido</translation>
    </message>
    <message>
        <source>print the order&apos;s table</source>
        <translation>imprime la mesa del pedido</translation>
    </message>
    <message>
        <source>print the customer block</source>
        <translation>imprime el bloque del cliente</translation>
    </message>
    <message>
        <source>print the customer&apos;s license number, with printCustomer</source>
        <translation>imprime el NIF-IVA del cliente, con printCustomer</translation>
    </message>
    <message>
        <source>print the customer&apos;s fiscal code, with printCustomer</source>
        <translation>imprime el NIF del cliente, con printCustomer</translation>
    </message>
    <message>
        <source>print the order&apos;s credit</source>
        <translation>imprime el crédito del pedido</translation>
    </message>
    <message>
        <source>print the order&apos;s waiter</source>
        <translation>imprime el camarero del pedido</translation>
    </message>
    <message>
        <source>print the order&apos;s note</source>
        <translation>imprime la nota del pedido</translation>
    </message>
    <message>
        <source>open the drawer of a receipt printer, once before the first receipt</source>
        <translation>abre el cajón de una impresora de tickets, una vez antes del primer recibo</translation>
    </message>
    <message>
        <source>empty lines on top, with printGeometry</source>
        <translation>líneas vacías arriba, con printGeometry</translation>
    </message>
    <message>
        <source>characters of an item&apos;s name that go to the register</source>
        <translation>caracteres del nombre de un artículo que van a la caja</translation>
    </message>
    <message>
        <source>number of copies that a receipt printer prints, 99 at most</source>
        <translation>número de copias que imprime una impresora de tickets, 99 como máximo</translation>
    </message>
    <message>
        <source>directory of the translation files</source>
        <translation>carpeta de los archivos de traducción</translation>
    </message>
    <message>
        <source>translation file, joined to basedir without a separator; &quot;/&quot; stands for /palvestrin_ and the locale&apos;s name</source>
        <translation>archivo de traducción, unido a basedir sin separador; «/» significa /palvestrin_ y el nombre del idioma</translation>
    </message>
    <message>
        <source>least level written: DEBUG, INFO, WARNING, ERROR or FATAL, in any case</source>
        <translation>nivel mínimo que se escribe: DEBUG, INFO, WARNING, ERROR o FATAL, en mayúsculas o minúsculas</translation>
    </message>
    <message>
        <source>directory of the log file</source>
        <translation>carpeta del archivo de registro</translation>
    </message>
    <message>
        <source>name of the log file</source>
        <translation>nombre del archivo de registro</translation>
    </message>
    <message>
        <source>APPEND to the log file or OVERWRITE it, in any case</source>
        <translation>APPEND añade al archivo de registro y OVERWRITE lo sobrescribe, en mayúsculas o minúsculas</translation>
    </message>
    <message>
        <source>database name</source>
        <translation>nombre de la base de datos</translation>
    </message>
    <message>
        <source>database user</source>
        <translation>usuario de la base de datos</translation>
    </message>
    <message>
        <source>database password</source>
        <translation>contraseña de la base de datos</translation>
    </message>
    <message>
        <source>database host</source>
        <translation>servidor de la base de datos</translation>
    </message>
    <message>
        <source>directory of the application&apos;s programs; a &quot;/&quot; and the name follow</source>
        <translation>carpeta de los programas de la aplicación; siguen «/» y el nombre</translation>
    </message>
    <message>
        <source>picture file (PBM) that a receipt printer prints for the logo</source>
        <translation>archivo de imagen (PBM) que una impresora de tickets imprime como logotipo</translation>
    </message>
    <message>
        <source>no translation: English labels</source>
        <translation>sin traducción: etiquetas en inglés</translation>
    </message>
    <message>
        <source>the root directory</source>
        <translation>la carpeta raíz</translation>
    </message>
    <message>
        <source>no file can be opened: no log</source>
        <translation>no se puede abrir ningún archivo: sin registro</translation>
    </message>
    <message>
        <source>no log</source>
        <translation>sin registro</translation>
    </message>
    <message>
        <source>the picture in the printer&apos;s own memory</source>
        <translation>la imagen en la memoria de la impresora</translation>
    </message>
    <message>
        <source>32, the printer&apos;s own width; the same for 0</source>
        <translation>32, el ancho de la impresora; lo mismo con 0</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivado</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>impresión</translation>
    </message>
    <message>
        <source>start-up</source>
        <translation>inicio</translation>
    </message>
    <message>
        <source>logger</source>
        <translation>registro</translation>
    </message>
    <message>
        <source>database</source>
        <translation>base de datos</translation>
    </message>
    <message>
        <source>utilities</source>
        <translation>utilidades</translation>
    </message>
    <message>
        <source>receipt printer</source>
        <translation>impresora de tickets</translation>
    </message>
    <message>
        <source>character</source>
        <translation>carácter</translation>
    </message>
    <message>
        <source>line</source>
        <translation>línea</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>copia</translation>
    </message>
    <message>
        <source>row</source>
        <translation>línea</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacío</translation>
    </message>
    <message>
        <source>the program %1 is not installed; install the package %2</source>
        <translation>el programa %1 no está instalado; instale el paquete %2</translation>
    </message>
    <message>
        <source>the text form has no room for &apos;;&apos; and &apos;&quot;&apos;, characters outside Latin-1, and more than 2044 bytes</source>
        <translation>la forma de texto no admite «;» ni «&quot;», caracteres fuera de Latin-1 ni más de 2044 bytes</translation>
    </message>
    <message>
        <source>the XML form has no room for pairs outside the first block, names that are no XML names, and &apos;&quot;&apos;, &apos;&lt;&apos;, &apos;&amp;&apos; and line breaks in values</source>
        <translation>la forma XML no admite pares fuera del primer bloque, nombres que no son nombres XML, ni «&quot;», «&lt;», «&amp;» y saltos de línea en los valores</translation>
    </message>
    <message>
        <source>it is no regular file; give one</source>
        <translation>no es un archivo normal; indique uno</translation>
    </message>
    <message>
        <source>nothing is found in an XML file that begins with a declaration or a remark; remove what stands before the first element</source>
        <translation>en un archivo XML que empieza con una declaración o un comentario no se encuentra nada; quite lo que hay antes del primer elemento</translation>
    </message>
    <message>
        <source>elements nest deeper than %1</source>
        <translation>los elementos están anidados a más de %1 niveles</translation>
    </message>
    <message>
        <source>%1; nothing is found in XML that is not well-formed</source>
        <translation>%1; en un XML mal formado no se encuentra nada</translation>
    </message>
    <message>
        <source>&quot;%1&quot; would not survive: %2</source>
        <translation>«%1» se perdería: %2</translation>
    </message>
    <message>
        <source>the link leads to no file; mend or remove it</source>
        <translation>el enlace no lleva a ningún archivo; corríjalo o quítelo</translation>
    </message>
    <message>
        <source>the file may not be written</source>
        <translation>no se permite escribir el archivo</translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation>no se puede crear su carpeta</translation>
    </message>
    <message>
        <source>another program is writing this file; try again when it is done</source>
        <translation>otro programa está escribiendo este archivo; inténtelo de nuevo cuando termine</translation>
    </message>
    <message>
        <source>%1 cannot be opened (%2)</source>
        <translation>%1 no se puede abrir (%2)</translation>
    </message>
    <message>
        <source>it cannot be locked (%1)</source>
        <translation>no se puede bloquear (%1)</translation>
    </message>
    <message>
        <source>it belongs to another user or group, and would not any more; do this as its owner</source>
        <translation>pertenece a otro usuario o grupo, y dejaría de hacerlo; hágalo como su propietario</translation>
    </message>
    <message>
        <source>%1; the file is unchanged</source>
        <translation>%1; el archivo no ha cambiado</translation>
    </message>
    <message>
        <source>%1 between a block&apos;s name and its brace</source>
        <translation>%1 entre el nombre de un bloque y su llave</translation>
    </message>
    <message>
        <source>%1, which belongs to no setting</source>
        <translation>%1, que no pertenece a ningún ajuste</translation>
    </message>
    <message>
        <source>%1 between a closing brace and the next &quot;;&quot; (is one missing?)</source>
        <translation>%1 entre una llave de cierre y el «;» siguiente (¿falta uno?)</translation>
    </message>
    <message>
        <source>block %1 without a brace</source>
        <translation>el bloque %1 sin llave</translation>
    </message>
    <message>
        <source>the end of %1: a name has room for %2 bytes, blanks in front included</source>
        <translation>el final de %1: un nombre admite %2 bytes como máximo, incluidos los espacios iniciales</translation>
    </message>
    <message>
        <source>blocks nested deeper than %1, and everything behind</source>
        <translation>los bloques anidados a más de %1 niveles, y todo lo que sigue</translation>
    </message>
    <message>
        <source>block %1: only the first top-level block is read and written</source>
        <translation>el bloque %1: solo se lee y se escribe el primer bloque exterior</translation>
    </message>
    <message>
        <source>empty block %1</source>
        <translation>el bloque vacío %1</translation>
    </message>
    <message>
        <source>this value of %1: line %2 gives another</source>
        <translation>este valor de %1: la línea %2 da otro</translation>
    </message>
    <message>
        <source>the quotes inside the value of %1 (is a &quot;;&quot; missing?)</source>
        <translation>las comillas dentro del valor de %1 (¿falta un «;»?)</translation>
    </message>
    <message>
        <source>the end of the value of %1: a value has room for %2 bytes</source>
        <translation>el final del valor de %1: un valor admite %2 bytes como máximo</translation>
    </message>
    <message>
        <source>everything behind this brace, which closes no block</source>
        <translation>todo lo que sigue a esta llave, que no cierra ningún bloque</translation>
    </message>
    <message>
        <source>the remark &quot;%1&quot;</source>
        <translation>el comentario «%1»</translation>
    </message>
    <message>
        <source>the text &quot;%1&quot;</source>
        <translation>el texto «%1»</translation>
    </message>
    <message>
        <source>the processing instruction &quot;%1&quot;</source>
        <translation>la instrucción de procesamiento «%1»</translation>
    </message>
    <message>
        <source>the document type</source>
        <translation>el tipo de documento</translation>
    </message>
    <message>
        <source>the entity &quot;%1&quot;</source>
        <translation>la entidad «%1»</translation>
    </message>
    <message>
        <source>the XML declaration</source>
        <translation>la declaración XML</translation>
    </message>
    <message>
        <source>this is no configuration but %1</source>
        <translation>esto no es una configuración sino %1</translation>
    </message>
    <message>
        <source>&quot;palvestrin config set&quot; begins a new file</source>
        <translation>«palvestrin config set» empieza un archivo nuevo</translation>
    </message>
    <message>
        <source>XML, and the programs read this file as text</source>
        <translation>XML, y los programas leen este archivo como texto</translation>
    </message>
    <message>
        <source>&quot;palvestrin config convert&quot; makes it text</source>
        <translation>«palvestrin config convert» lo convierte en texto</translation>
    </message>
    <message>
        <source>belongs to no setting and is dropped</source>
        <translation>no pertenece a ningún ajuste y se elimina</translation>
    </message>
    <message>
        <source>the block %1 has no &quot;{&quot;: everything behind its name is dropped</source>
        <translation>el bloque %1 no tiene «{»: se elimina todo lo que sigue a su nombre</translation>
    </message>
    <message>
        <source>put a &quot;{&quot; behind its name and the &quot;:&quot;</source>
        <translation>ponga un «{» después de su nombre y del «:»</translation>
    </message>
    <message>
        <source>the block %1 is never closed</source>
        <translation>el bloque %1 no se cierra nunca</translation>
    </message>
    <message>
        <source>put &quot;};&quot; where it ends</source>
        <translation>ponga «};» donde termina</translation>
    </message>
    <message>
        <source>stands between a block&apos;s name and its &quot;{&quot; and is dropped</source>
        <translation>está entre el nombre de un bloque y su «{» y se elimina</translation>
    </message>
    <message>
        <source>%1 is lost: the &quot;:&quot; of the remark in line %2 drops everything up to the next &quot;{&quot;</source>
        <translation>%1 se pierde: el «:» del comentario de la línea %2 elimina todo hasta el siguiente «{»</translation>
    </message>
    <message>
        <source>take the remark out; this form of file has no remarks</source>
        <translation>quite el comentario; este tipo de archivo no tiene comentarios</translation>
    </message>
    <message>
        <source>%1 is lost: the block %2 in line %3 has no &quot;{&quot; of its own</source>
        <translation>%1 se pierde: el bloque %2 de la línea %3 no tiene su propio «{»</translation>
    </message>
    <message>
        <source>put a &quot;{&quot; behind the &quot;:&quot; of that block</source>
        <translation>ponga un «{» después del «:» de ese bloque</translation>
    </message>
    <message>
        <source>a block</source>
        <translation>un bloque</translation>
    </message>
    <message>
        <source>this remark is read as %1 of an odd name, which nobody looks for</source>
        <translation>este comentario se lee como %1 de nombre raro, que nadie busca</translation>
    </message>
    <message>
        <source>this form of file has no remarks</source>
        <translation>este tipo de archivo no tiene comentarios</translation>
    </message>
    <message>
        <source>a setting</source>
        <translation>un ajuste</translation>
    </message>
    <message>
        <source>the &quot;}&quot; in the remark %1 ends the block here</source>
        <translation>la «}» del comentario %1 termina aquí el bloque</translation>
    </message>
    <message>
        <source>take it out, or put in the &quot;=&quot; or &quot;;&quot; that it lacks</source>
        <translation>quítelo, o ponga el «=» o el «;» que falta</translation>
    </message>
    <message>
        <source>%1 is skipped: the &quot;;&quot; behind the &quot;}&quot; in line %2 is missing</source>
        <translation>%1 se omite: falta el «;» después de la «}» de la línea %2</translation>
    </message>
    <message>
        <source>put a &quot;;&quot; behind that brace</source>
        <translation>ponga un «;» después de esa llave</translation>
    </message>
    <message>
        <source>nothing from here on is read: the &quot;}&quot; in line %1 closes no block</source>
        <translation>a partir de aquí no se lee nada: la «}» de la línea %1 no cierra ningún bloque</translation>
    </message>
    <message>
        <source>nothing from here on is read: blocks nest deeper than %1</source>
        <translation>a partir de aquí no se lee nada: los bloques están anidados a más de %1 niveles</translation>
    </message>
    <message>
        <source>take that brace out</source>
        <translation>quite esa llave</translation>
    </message>
    <message>
        <source>nothing of this file is read: %1</source>
        <translation>no se lee nada de este archivo: %1</translation>
    </message>
    <message>
        <source>nothing is found in an XML configuration that begins with a declaration or a remark</source>
        <translation>en una configuración XML que empieza con una declaración o un comentario no se encuentra nada</translation>
    </message>
    <message>
        <source>take out what stands in front of the first element</source>
        <translation>quite lo que hay antes del primer elemento</translation>
    </message>
    <message>
        <source>%1 is text between elements, which sets nothing</source>
        <translation>%1 es texto entre elementos, que no ajusta nada</translation>
    </message>
    <message>
        <source>settings are attributes</source>
        <translation>los ajustes son atributos</translation>
    </message>
    <message>
        <source>a file of more than 1 MiB</source>
        <translation>un archivo de más de 1 MiB</translation>
    </message>
    <message>
        <source>a binary file, or text in UTF-16</source>
        <translation>un archivo binario, o texto en UTF-16</translation>
    </message>
    <message>
        <source>XML with more than 1000 attributes in an element</source>
        <translation>XML con más de 1000 atributos en un elemento</translation>
    </message>
    <message>
        <source>an INI file</source>
        <translation>un archivo INI</translation>
    </message>
    <message>
        <source>text without a block &quot;palvestrin: {&quot;</source>
        <translation>texto sin un bloque «palvestrin: {»</translation>
    </message>
    <message>
        <source>the value of %1 is UTF-8, and is read as Latin-1: %2</source>
        <translation>el valor de %1 es UTF-8 y se lee como Latin-1: %2</translation>
    </message>
    <message>
        <source>save the file as Latin-1, or use &quot;palvestrin config set&quot;</source>
        <translation>guarde el archivo como Latin-1, o use «palvestrin config set»</translation>
    </message>
    <message>
        <source>%1 is read as part of the value of %2, whose &quot;;&quot; is missing</source>
        <translation>%1 se lee como parte del valor de %2, al que le falta el «;»</translation>
    </message>
    <message>
        <source>put a &quot;;&quot; behind that value</source>
        <translation>ponga un «;» después de ese valor</translation>
    </message>
    <message>
        <source>%1 is read as part of the remark in line %2, which goes on up to the next &quot;;&quot;</source>
        <translation>%1 se lee como parte del comentario de la línea %2, que llega hasta el siguiente «;»</translation>
    </message>
    <message>
        <source>the value of %1 has %2 bytes and is cut to %3</source>
        <translation>el valor de %1 tiene %2 bytes y se corta a %3</translation>
    </message>
    <message>
        <source>is a &quot;;&quot; missing in it?</source>
        <translation>¿falta un «;»?</translation>
    </message>
    <message>
        <source>a quote inside the value of %1 vanishes: it is read as %2</source>
        <translation>una comilla dentro del valor de %1 desaparece: se lee %2</translation>
    </message>
    <message>
        <source>quotes stand around a value or nowhere</source>
        <translation>las comillas van alrededor de un valor o en ninguna parte</translation>
    </message>
    <message>
        <source>did you mean &quot;%1&quot;?</source>
        <translation>¿quería decir «%1»?</translation>
    </message>
    <message>
        <source>Existing log</source>
        <translation>Registro existente</translation>
    </message>
    <message>
        <source>receipt printer, copy number</source>
        <translation>impresora de tickets, número de copias</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>never found: only the first top-level block is searched</source>
        <translation>nunca se encuentra: solo se busca en el primer bloque del archivo</translation>
    </message>
    <message>
        <source>no program reads this</source>
        <translation>ningún programa lo lee</translation>
    </message>
    <message>
        <source>no program reads this; did you mean %1?</source>
        <translation>ningún programa lo lee; ¿quería decir %1?</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>It would never be found: the first block of the file is another.</source>
        <translation>No se encontraría nunca: el primer bloque del archivo es otro.</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Cambiar %1</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Reload the file</source>
        <translation>&amp;Recargar el archivo</translation>
    </message>
    <message>
        <source>Show a &amp;job of your own…</source>
        <translation>Mostrar un &amp;trabajo propio…</translation>
    </message>
    <message>
        <source>Save the &amp;paper as a picture…</source>
        <translation>Guardar el &amp;papel como imagen…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Copy the paper as text</source>
        <translation>&amp;Copiar el papel como texto</translation>
    </message>
    <message>
        <source>&amp;Find a setting</source>
        <translation>&amp;Buscar un ajuste</translation>
    </message>
    <message>
        <source>Reset the &amp;setting</source>
        <translation>Restablecer el &amp;ajuste</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Larger paper</source>
        <translation>Papel más &amp;grande</translation>
    </message>
    <message>
        <source>&amp;Smaller paper</source>
        <translation>Papel más &amp;pequeño</translation>
    </message>
    <message>
        <source>&amp;Fit the paper</source>
        <translation>&amp;Ajustar el papel</translation>
    </message>
    <message>
        <source>Go to the &amp;documents</source>
        <translation>Ir a los &amp;documentos</translation>
    </message>
    <message>
        <source>&amp;All keys</source>
        <translation>&amp;Todas las claves</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;How it works</source>
        <translation>&amp;Cómo funciona</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Begin with a preset</source>
        <translation>Empezar con una plantilla</translation>
    </message>
    <message>
        <source>%1[*] – Palvestrin Print</source>
        <translation>%1[*] – Palvestrin Print</translation>
    </message>
    <message>
        <source>About Palvestrin Print</source>
        <translation>Acerca de Palvestrin Print</translation>
    </message>
    <message>
        <source>&lt;b&gt;Palvestrin Print %1&lt;/b&gt;&lt;p&gt;Tickets, receipts and invoices of a restaurant or a shop, on the paper of its printers.&lt;/p&gt;</source>
        <translation>&lt;b&gt;Palvestrin Print %1&lt;/b&gt;&lt;p&gt;Comandas, recibos y facturas de un restaurante o una tienda, en el papel de sus impresoras.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>ValueEditor</name>
    <message>
        <source>Default: %1</source>
        <translation>Predeterminado: %1</translation>
    </message>
    <message>
        <source>Choose a folder…</source>
        <translation>Elegir una carpeta…</translation>
    </message>
    <message>
        <source>Choose a file…</source>
        <translation>Elegir un archivo…</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Mostrar la contraseña</translation>
    </message>
</context>
</TS>
