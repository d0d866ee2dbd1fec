<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AllKeys</name>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>All keys</source>
        <translation>Toutes les clés</translation>
    </message>
    <message>
        <source>Add setting…</source>
        <translation>Ajouter un réglage…</translation>
    </message>
    <message>
        <source>Add block…</source>
        <translation>Ajouter un bloc…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Modifier %1</translation>
    </message>
    <message>
        <source>Remove a block</source>
        <translation>Supprimer un bloc</translation>
    </message>
    <message>
        <source>Remove the block “%1” with everything in it? You can undo this.</source>
        <translation>Supprimer le bloc « %1 » et tout son contenu ? Vous pourrez l’annuler.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Supprimer %1</translation>
    </message>
    <message>
        <source>Add a setting</source>
        <translation>Ajouter un réglage</translation>
    </message>
    <message>
        <source>Key:</source>
        <translation>Clé :</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Ajouter %1</translation>
    </message>
    <message>
        <source>Add a block</source>
        <translation>Ajouter un bloc</translation>
    </message>
    <message>
        <source>Name of the block:</source>
        <translation>Nom du bloc :</translation>
    </message>
    <message>
        <source>A name is made of letters, digits, “_” and “-”.</source>
        <translation>Un nom se compose de lettres, de chiffres, de « _ » et de « - ».</translation>
    </message>
</context>
<context>
    <name>CurrentSetting</name>
    <message>
        <source>Choose a setting: its meaning is explained here, and what it does is marked on the paper.</source>
        <translation>Choisissez un réglage : son sens est expliqué ici, et son effet est surligné sur le papier.</translation>
    </message>
    <message>
        <source>No program reads this.</source>
        <translation>Aucun programme ne lit ceci.</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Par défaut : %1</translation>
    </message>
    <message>
        <source>The settings of: %1</source>
        <translation>Les réglages de : %1</translation>
    </message>
    <message>
        <source>Holds the settings of all documents and programs.</source>
        <translation>Contient les réglages de tous les documents et programmes.</translation>
    </message>
</context>
<context>
    <name>FileKeeper</name>
    <message>
        <source>Another program has changed the file.</source>
        <translation>Un autre programme a modifié le fichier.</translation>
    </message>
    <message>
        <source>Show what differs…</source>
        <translation>Afficher les différences…</translation>
    </message>
    <message>
        <source>%1 You can look and try here, but not save.</source>
        <translation>%1 Vous pouvez regarder et essayer ici, mais pas enregistrer.</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Le fichier ne peut pas être lu</translation>
    </message>
    <message>
        <source>Merge with the file</source>
        <translation>Fusionner avec le fichier</translation>
    </message>
    <message>
        <source>Reload the file</source>
        <translation>Recharger le fichier</translation>
    </message>
    <message>
        <source>The file was read again. Undo brings your changes back.</source>
        <translation>Le fichier a été relu. « Annuler » rétablit vos modifications.</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non enregistré</translation>
    </message>
    <message>
        <source>%1 cannot be stored as it stands. %2</source>
        <translation>%1 ne peut pas être enregistré tel quel. %2</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message>
        <source>The block “%1”: only the first block on top is written.</source>
        <translation>Le bloc « %1 » : seul le premier bloc est écrit.</translation>
    </message>
    <message>
        <source>Saving loses something</source>
        <translation>Perte à l’enregistrement</translation>
    </message>
    <message>
        <source>Saving loses what the details name. A backup keeps the file as it was.</source>
        <translation>L’enregistrement fait perdre ce qu’indiquent les détails. Une copie conserve l’ancien fichier.</translation>
    </message>
    <message>
        <source>Nothing has been changed, and nothing was written.</source>
        <translation>Rien n’a changé, et rien n’a été écrit.</translation>
    </message>
    <message>
        <source>another program is changing the file; save again when it is done</source>
        <translation>un autre programme modifie le fichier ; enregistrez de nouveau quand il aura fini</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Saved. The file as it was is kept as %1</source>
        <translation>Enregistré. L’ancien fichier est conservé sous %1</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>Enregistrer les modifications de %1 ?</translation>
    </message>
    <message>
        <source>The file is gone. Save writes it anew.</source>
        <translation>Le fichier a disparu. « Enregistrer » l’écrit à nouveau.</translation>
    </message>
</context>
<context>
    <name>FirstUse</name>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 characters on a line</source>
        <translation>%1 caractères par ligne</translation>
    </message>
    <message>
        <source>Kind of business</source>
        <translation>Type d’établissement</translation>
    </message>
    <message>
        <source>Set up your paper</source>
        <translation>Réglez votre papier</translation>
    </message>
    <message>
        <source>There are no settings yet. Choose what comes nearest: the paper on the right shows it. Everything can be changed afterwards.</source>
        <translation>Il n’y a pas encore de réglages. Choisissez ce qui s’en approche le plus : le papier à droite le montre. Tout peut être modifié ensuite.</translation>
    </message>
    <message>
        <source>Use these settings</source>
        <translation>Utiliser ces réglages</translation>
    </message>
    <message>
        <source>Start empty</source>
        <translation>Partir de zéro</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Set up a paper</source>
        <translation>Réglez votre papier</translation>
    </message>
    <message>
        <source>Choose a document on the left. Its settings are in the middle, its paper is on the right, printed by the real program. Every change shows there at once.</source>
        <translation>Choisissez un document à gauche. Ses réglages sont au milieu, son papier à droite, imprimé par le programme d’impression lui-même. Chaque modification s’y voit aussitôt.</translation>
    </message>
    <message>
        <source>See what a setting does</source>
        <translation>Voir l’effet d’un réglage</translation>
    </message>
    <message>
        <source>Go to a field: its meaning is explained below, and the rows that it concerns are marked on the paper. What runs over the edge is red.</source>
        <translation>Allez dans un champ : son sens est expliqué en dessous, et les lignes qu’il concerne sont surlignées sur le papier. Ce qui dépasse du bord est en rouge.</translation>
    </message>
    <message>
        <source>Nothing is lost</source>
        <translation>Rien n’est perdu</translation>
    </message>
    <message>
        <source>Nothing is written before you save. Undo takes back every step, and the file as it was stays beside the new one.</source>
        <translation>Rien n’est écrit avant l’enregistrement. « Annuler » défait chaque étape, et l’ancien fichier reste à côté du nouveau.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>How it works</source>
        <translation>Mode d’emploi</translation>
    </message>
</context>
<context>
    <name>MergeDialog</name>
    <message>
        <source>not set</source>
        <translation>non défini</translation>
    </message>
    <message>
        <source>The file has changed</source>
        <translation>Le fichier a changé</translation>
    </message>
    <message>
        <source>Another program has changed the file. Tick the settings that are to be as they are in the file; the others stay as they are here.</source>
        <translation>Un autre programme a modifié le fichier. Cochez les réglages à reprendre du fichier ; les autres restent comme ici.</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Ici</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>Dans le fichier</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>Réglages différents</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>Take all from the file</source>
        <translation>Tout reprendre du fichier</translation>
    </message>
    <message>
        <source>This can only be as it is in the file.</source>
        <translation>Ceci ne peut être que comme dans le fichier.</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Documents and parts</source>
        <translation>Documents et parties</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Application</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>All keys</source>
        <translation>Toutes les clés</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modifié</translation>
    </message>
    <message>
        <source>something is wrong</source>
        <translation>quelque chose ne va pas</translation>
    </message>
</context>
<context>
    <name>PaperPane</name>
    <message>
        <source>Smaller</source>
        <translation>Plus petit</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Plus grand</translation>
    </message>
    <message>
        <source>Fit the paper to the window</source>
        <translation>Ajuster le papier à la fenêtre</translation>
    </message>
    <message>
        <source>Copy the paper as text</source>
        <translation>Copier le papier en texte</translation>
    </message>
    <message>
        <source>Print job</source>
        <translation>Travail d’impression</translation>
    </message>
    <message>
        <source>The print job that is shown on the paper</source>
        <translation>Le travail d’impression affiché sur le papier</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>Exemple : %1</translation>
    </message>
    <message>
        <source>A job of your own…</source>
        <translation>Un de vos travaux d’impression…</translation>
    </message>
    <message>
        <source>A job of your own</source>
        <translation>Un de vos travaux d’impression</translation>
    </message>
    <message>
        <source>Print jobs (*.xml);;All files (*)</source>
        <translation>Travaux d’impression (*.xml);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The job prints nothing.</source>
        <translation>Le travail n’imprime rien.</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Save the paper as a picture</source>
        <translation>Enregistrer le papier en image</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>Image PNG (*.png)</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Document PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non enregistré</translation>
    </message>
</context>
<context>
    <name>PaperTask</name>
    <message>
        <source>There is no room for the preview in %1.</source>
        <translation>Il n’y a pas de place pour l’aperçu dans %1.</translation>
    </message>
    <message>
        <source>The job takes too long to be shown.</source>
        <translation>Le travail est trop long pour être affiché.</translation>
    </message>
    <message>
        <source>The program that prints cannot be started: %1</source>
        <translation>Le programme qui imprime ne démarre pas : %1</translation>
    </message>
    <message>
        <source>The program that prints has crashed.</source>
        <translation>Le programme qui imprime a planté.</translation>
    </message>
</context>
<context>
    <name>PaperView</name>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
</context>
<context>
    <name>Register</name>
    <message>
        <source>To the cash register</source>
        <translation>Vers la caisse enregistreuse</translation>
    </message>
    <message>
        <source>, with a modifier that is no number</source>
        <translation>, avec une variation qui n’est pas un nombre</translation>
    </message>
    <message>
        <source>, less %1</source>
        <translation>, moins %1</translation>
    </message>
    <message>
        <source>, plus %1</source>
        <translation>, plus %1</translation>
    </message>
    <message>
        <source>sale: %1 x %2 at %3</source>
        <translation>vente : %1 x %2 à %3</translation>
    </message>
    <message>
        <source>no quantity</source>
        <translation>sans quantité</translation>
    </message>
    <message>
        <source>an item without a name</source>
        <translation>un article sans nom</translation>
    </message>
    <message>
        <source>no department</source>
        <translation>aucun rayon</translation>
    </message>
    <message>
        <source>department %1</source>
        <translation>rayon %1</translation>
    </message>
    <message>
        <source>no number</source>
        <translation>pas un nombre</translation>
    </message>
    <message>
        <source>reduction</source>
        <translation>réduction</translation>
    </message>
    <message>
        <source>discount</source>
        <translation>remise</translation>
    </message>
    <message>
        <source>cash</source>
        <translation>espèces</translation>
    </message>
    <message>
        <source>credit card</source>
        <translation>carte de crédit</translation>
    </message>
    <message>
        <source>cheque</source>
        <translation>chèque</translation>
    </message>
    <message>
        <source>not paid</source>
        <translation>non payé</translation>
    </message>
    <message>
        <source>The register will show %1</source>
        <translation>La caisse affichera %1</translation>
    </message>
    <message>
        <source>: sales %1</source>
        <translation> : ventes %1</translation>
    </message>
    <message>
        <source>, less reductions %1</source>
        <translation>, moins réductions %1</translation>
    </message>
    <message>
        <source>, less discount %1</source>
        <translation>, moins remises %1</translation>
    </message>
    <message>
        <source>Not counted: 1 command that could not be read.</source>
        <translation>Non comptée : 1 commande illisible.</translation>
    </message>
    <message>
        <source>Not counted: %1 commands that could not be read.</source>
        <translation>Non comptées : %1 commandes illisibles.</translation>
    </message>
    <message>
        <source>Settled by %1</source>
        <translation>Réglé par : %1</translation>
    </message>
    <message>
        <source>%1 less than the sum.</source>
        <translation>%1 de moins que le total.</translation>
    </message>
    <message>
        <source>%1 more than the sum.</source>
        <translation>%1 de plus que le total.</translation>
    </message>
</context>
<context>
    <name>ResultList</name>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Settings found</source>
        <translation>Réglages trouvés</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message>
        <source>No setting has “%1” in its name, its explanation or its value.</source>
        <translation>Aucun réglage n’a « %1 » dans son nom, son explication ou sa valeur.</translation>
    </message>
    <message>
        <source>Nothing has been changed.</source>
        <translation>Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Tout va bien.</translation>
    </message>
</context>
<context>
    <name>SearchBar</name>
    <message>
        <source>Changed</source>
        <translation>Modifiés</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problèmes</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Chercher un réglage</translation>
    </message>
    <message>
        <source>Looks in names, explanations, keys and values</source>
        <translation>Cherche dans les noms, explications, clés et valeurs</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>Problèmes (%1)</translation>
    </message>
</context>
<context>
    <name>SettingField</name>
    <message>
        <source>default</source>
        <translation>par défaut</translation>
    </message>
    <message>
        <source>Reset to the default</source>
        <translation>Rétablir la valeur par défaut</translation>
    </message>
    <message>
        <source>Reset %1 to the default</source>
        <translation>Rétablir %1 à la valeur par défaut</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de données</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programmes</translation>
    </message>
    <message>
        <source>Receipt printer</source>
        <translation>Imprimante de tickets</translation>
    </message>
    <message>
        <source>characters</source>
        <translation>caractères</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Largeur de ligne</translation>
    </message>
    <message>
        <source>Quantity column</source>
        <translation>Colonne quantité</translation>
    </message>
    <message>
        <source>Price column</source>
        <translation>Colonne prix</translation>
    </message>
    <message>
        <source>Total column</source>
        <translation>Colonne total</translation>
    </message>
    <message>
        <source>Item name</source>
        <translation>Nom de l’article</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Marge du haut</translation>
    </message>
    <message>
        <source>Height of the top margin</source>
        <translation>Hauteur de la marge</translation>
    </message>
    <message>
        <source>lines</source>
        <translation>lignes</translation>
    </message>
    <message>
        <source>Header lines</source>
        <translation>Lignes d’en-tête</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Société</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Adresse de livraison</translation>
    </message>
    <message>
        <source>Billing address</source>
        <translation>Adresse de facturation</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Licence number</source>
        <translation>Numéro de TVA</translation>
    </message>
    <message>
        <source>Fiscal code</source>
        <translation>Numéro fiscal</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Crédit</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>Waiter</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplaires</translation>
    </message>
    <message>
        <source>copies</source>
        <translation>exemplaires</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Open the cash drawer</source>
        <translation>Ouvrir le tiroir-caisse</translation>
    </message>
    <message>
        <source>Rows per page</source>
        <translation>Lignes par page</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>lignes</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Translation file</source>
        <translation>Fichier de traduction</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Niveau minimal</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Database name</source>
        <translation>Nom de la base</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Folder of the programs</source>
        <translation>Dossier des programmes</translation>
    </message>
    <message>
        <source>Logo picture</source>
        <translation>Image du logo</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>En-tête</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Without effect</source>
        <translation>Sans effet</translation>
    </message>
    <message>
        <source>You have no permission to change this file.</source>
        <translation>Vous n’avez pas le droit de modifier ce fichier.</translation>
    </message>
    <message>
        <source>Its folder cannot be made: a file is in the way.</source>
        <translation>Le dossier ne peut pas être créé : un fichier est à sa place.</translation>
    </message>
    <message>
        <source>You have no permission to write in its folder.</source>
        <translation>Vous n’avez pas le droit d’écrire dans son dossier.</translation>
    </message>
    <message>
        <source>Restaurant</source>
        <translation>Restaurant</translation>
    </message>
    <message>
        <source>Kitchen tickets with table and waiter, bills and receipts.</source>
        <translation>Bons de cuisine avec table et serveur, additions et reçus.</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Bar</translation>
    </message>
    <message>
        <source>Short receipts with date and time; the drawer opens.</source>
        <translation>Reçus courts avec date et heure ; le tiroir-caisse s’ouvre.</translation>
    </message>
    <message>
        <source>Shop</source>
        <translation>Magasin</translation>
    </message>
    <message>
        <source>Receipts without tables, and invoices and delivery notes for customers.</source>
        <translation>Reçus sans tables, factures et bons de livraison pour les clients.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no key; a key is two or more names of letters, digits, &apos;_&apos; and &apos;-&apos;, with dots between</source>
        <translation>« %1 » n’est pas une clé ; une clé est faite de deux noms ou plus de lettres, chiffres, « _ » et « - », séparés par des points</translation>
    </message>
    <message>
        <source>a value cannot hold &apos;%1&apos;; leave it out</source>
        <translation>une valeur ne peut pas contenir « %1 » ; retirez-le</translation>
    </message>
    <message>
        <source>a value has room for %1 bytes, this one has %2; shorten it</source>
        <translation>une valeur peut contenir %1 octets au plus, celle-ci en a %2 ; raccourcissez-la</translation>
    </message>
    <message>
        <source>give a whole number from 0 to %1</source>
        <translation>indiquez un nombre entier de 0 à %1</translation>
    </message>
    <message>
        <source>give true or false, in small letters</source>
        <translation>indiquez true ou false, en minuscules</translation>
    </message>
    <message>
        <source>give one of %1</source>
        <translation>indiquez l’un de ceux-ci : %1</translation>
    </message>
    <message>
        <source>give %1</source>
        <translation>indiquez %1</translation>
    </message>
    <message>
        <source>or</source>
        <translation>ou</translation>
    </message>
    <message>
        <source>%1 is not set</source>
        <translation>%1 n’est pas défini</translation>
    </message>
    <message>
        <source>%1, counts as %2</source>
        <translation>%1, compte comme %2</translation>
    </message>
    <message>
        <source>%1; when missing: %2</source>
        <translation>%1 ; s’il manque : %2</translation>
    </message>
    <message>
        <source>read by: %1</source>
        <translation>lu par : %1</translation>
    </message>
    <message>
        <source>consulted by no print method</source>
        <translation>n’est utilisé par aucune méthode d’impression</translation>
    </message>
    <message>
        <source>consulted by: %1</source>
        <translation>utilisé par : %1</translation>
    </message>
    <message>
        <source>&quot;palvestrin config list&quot; lists the settings that programs read</source>
        <translation>« palvestrin config list » liste les réglages que les programmes lisent</translation>
    </message>
    <message>
        <source>the block %1 is never looked into: only the first one of a file is</source>
        <translation>le bloc %1 n’est jamais lu : seul le premier bloc d’un fichier l’est</translation>
    </message>
    <message>
        <source>move it to the front, and what is there into it</source>
        <translation>mettez-le au début, et déplacez-y ce qui s’y trouve</translation>
    </message>
    <message>
        <source>move its settings into the first block</source>
        <translation>mettez ses réglages dans le premier bloc</translation>
    </message>
    <message>
        <source>no program looks into the block %1</source>
        <translation>aucun programme ne lit le bloc %1</translation>
    </message>
    <message>
        <source>it belongs into the block &quot;%1&quot;</source>
        <translation>il va dans le bloc « %1 »</translation>
    </message>
    <message>
        <source>the block %1 is empty, which is the same as none</source>
        <translation>le bloc %1 est vide, ce qui revient à aucun</translation>
    </message>
    <message>
        <source>%1 stands outside the blocks, where no program looks</source>
        <translation>%1 est hors des blocs, où aucun programme ne lit</translation>
    </message>
    <message>
        <source>move it into a block of the block &quot;%1&quot;</source>
        <translation>mettez-le dans un bloc du bloc « %1 »</translation>
    </message>
    <message>
        <source>no program reads %1</source>
        <translation>aucun programme ne lit %1</translation>
    </message>
    <message>
        <source>a name has no dots: put %1 into the block %2</source>
        <translation>un nom n’a pas de points : mettez %1 dans le bloc %2</translation>
    </message>
    <message>
        <source>it belongs into a block, such as %1</source>
        <translation>il va dans un bloc, comme %1</translation>
    </message>
    <message>
        <source>did you mean %1?</source>
        <translation>vouliez-vous dire %1 ?</translation>
    </message>
    <message>
        <source>%1 is given twice: this value %2 does not count, the one in line %3 does</source>
        <translation>%1 est donné deux fois : cette valeur %2 ne compte pas, celle de la ligne %3 compte</translation>
    </message>
    <message>
        <source>remove one of them</source>
        <translation>retirez l’une d’elles</translation>
    </message>
    <message>
        <source>on the paper &quot;%1&quot;, %2 and %3 more take %4 of %5 characters: %6</source>
        <translation>sur le papier « %1 », %2 et %3 de plus prennent %4 des %5 caractères : %6</translation>
    </message>
    <message>
        <source>descriptions are not cut, and run over the edge</source>
        <translation>les descriptions ne sont pas coupées et dépassent du bord</translation>
    </message>
    <message>
        <source>nothing is left for the description</source>
        <translation>il ne reste rien pour la description</translation>
    </message>
    <message>
        <source>make the paper wider or the columns narrower</source>
        <translation>élargissez le papier ou rétrécissez les colonnes</translation>
    </message>
    <message>
        <source>%1 does nothing while %2 is off</source>
        <translation>%1 ne fait rien tant que %2 est désactivé</translation>
    </message>
    <message>
        <source>set %1 to &quot;true&quot;, or take this one out</source>
        <translation>mettez %1 à « true », ou retirez celui-ci</translation>
    </message>
    <message>
        <source>%1 changes nothing on paper</source>
        <translation>%1 ne change rien sur le papier</translation>
    </message>
    <message>
        <source>none of the documents of this block asks for it</source>
        <translation>aucun document de ce bloc ne l’utilise</translation>
    </message>
    <message>
        <source>%1 is no sensible value for %2</source>
        <translation>%1 n’est pas une valeur valable pour %2</translation>
    </message>
    <message>
        <source>%1 counts as %2 for %3</source>
        <translation>%1 compte comme %2 pour %3</translation>
    </message>
    <message>
        <source>Kitchen ticket</source>
        <translation>Bon de cuisine</translation>
    </message>
    <message>
        <source>Bill</source>
        <translation>Addition</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Reçu</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Facture</translation>
    </message>
    <message>
        <source>Delivery note</source>
        <translation>Bon de livraison</translation>
    </message>
    <message>
        <source>Fiscal receipt</source>
        <translation>Ticket fiscal</translation>
    </message>
    <message>
        <source>Empty document</source>
        <translation>Document vide</translation>
    </message>
    <message>
        <source>Summary receipt</source>
        <translation>Reçu récapitulatif</translation>
    </message>
    <message>
        <source>Summary invoice</source>
        <translation>Facture récapitulative</translation>
    </message>
    <message>
        <source>Summary fiscal receipt</source>
        <translation>Ticket fiscal récapitulatif</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>List of items sold</source>
        <translation>Articles vendus</translation>
    </message>
    <message>
        <source>Statement of account</source>
        <translation>Relevé de compte</translation>
    </message>
    <message>
        <source>characters of the quantity column</source>
        <translation>caractères de la colonne des quantités</translation>
    </message>
    <message>
        <source>characters of the unit price column, and of the amount in a statement of account</source>
        <translation>caractères de la colonne du prix unitaire, et du montant dans un relevé de compte</translation>
    </message>
    <message>
        <source>characters of the line total column</source>
        <translation>caractères de la colonne du total de la ligne</translation>
    </message>
    <message>
        <source>characters of a line</source>
        <translation>caractères d’une ligne</translation>
    </message>
    <message>
        <source>rows of a page; a receipt printer fills up the last one</source>
        <translation>lignes d’une page ; une imprimante de tickets complète la dernière</translation>
    </message>
    <message>
        <source>no effect: each document has its own layout</source>
        <translation>sans effet : chaque document a sa propre présentation</translation>
    </message>
    <message>
        <source>print the top margin</source>
        <translation>imprime la marge du haut</translation>
    </message>
    <message>
        <source>print the free header lines</source>
        <translation>imprime les lignes libres d’en-tête</translation>
    </message>
    <message>
        <source>print the logo, on a receipt printer</source>
        <translation>imprime le logo, sur une imprimante de tickets</translation>
    </message>
    <message>
        <source>print the company&apos;s lines</source>
        <translation>imprime les lignes de la société</translation>
    </message>
    <message>
        <source>print the delivery address, with printCustomer</source>
        <translation>imprime l’adresse de livraison, avec printCustomer</translation>
    </message>
    <message>
        <source>print the billing address, with printCustomer</source>
        <translation>imprime l’adresse de facturation, avec printCustomer</translation>
    </message>
    <message>
        <source>print the customer&apos;s telephone, with printCustomer</source>
        <translation>imprime le téléphone du client, avec printCustomer</translation>
    </message>
    <message>
        <source>print the order&apos;s date</source>
        <translation>imprime la date de la commande</translation>
    </message>
    <message>
        <source>print the order&apos;s time</source>
        <translation>imprime l’heure de la commande</translation>
    </message>
    <message>
        <source>print the order&apos;s table</source>
        <translation>imprime la table de la commande</translation>
    </message>
    <message>
        <source>print the customer block</source>
        <translation>imprime le bloc du client</translation>
    </message>
    <message>
        <source>print the customer&apos;s license number, with printCustomer</source>
        <translation>imprime le numéro de TVA du client, avec printCustomer</translation>
    </message>
    <message>
        <source>print the customer&apos;s fiscal code, with printCustomer</source>
        <translation>imprime le numéro fiscal du client, avec printCustomer</translation>
    </message>
    <message>
        <source>print the order&apos;s credit</source>
        <translation>imprime le crédit de la commande</translation>
    </message>
    <message>
        <source>print the order&apos;s waiter</source>
        <translation>imprime le serveur de la commande</translation>
    </message>
    <message>
        <source>print the order&apos;s note</source>
        <translation>imprime la remarque de la commande</translation>
    </message>
    <message>
        <source>open the drawer of a receipt printer, once before the first receipt</source>
        <translation>ouvre le tiroir d’une imprimante de tickets, une fois avant le premier reçu</translation>
    </message>
    <message>
        <source>empty lines on top, with printGeometry</source>
        <translation>lignes vides en haut, avec printGeometry</translation>
    </message>
    <message>
        <source>characters of an item&apos;s name that go to the register</source>
        <translation>caractères du nom d’un article qui vont à la caisse</translation>
    </message>
    <message>
        <source>number of copies that a receipt printer prints, 99 at most</source>
        <translation>nombre d’exemplaires qu’une imprimante de tickets imprime, 99 au plus</translation>
    </message>
    <message>
        <source>directory of the translation files</source>
        <translation>dossier des fichiers de traduction</translation>
    </message>
    <message>
        <source>translation file, joined to basedir without a separator; &quot;/&quot; stands for /palvestrin_ and the locale&apos;s name</source>
        <translation>fichier de traduction, joint à basedir sans séparateur ; « / » signifie /palvestrin_ et le nom de la langue</translation>
    </message>
    <message>
        <source>least level written: DEBUG, INFO, WARNING, ERROR or FATAL, in any case</source>
        <translation>niveau minimal écrit : DEBUG, INFO, WARNING, ERROR ou FATAL, en majuscules ou minuscules</translation>
    </message>
    <message>
        <source>directory of the log file</source>
        <translation>dossier du fichier journal</translation>
    </message>
    <message>
        <source>name of the log file</source>
        <translation>nom du fichier journal</translation>
    </message>
    <message>
        <source>APPEND to the log file or OVERWRITE it, in any case</source>
        <translation>APPEND ajoute au fichier journal, OVERWRITE l’écrase, en majuscules ou minuscules</translation>
    </message>
    <message>
        <source>database name</source>
        <translation>nom de la base de données</translation>
    </message>
    <message>
        <source>database user</source>
        <translation>utilisateur de la base de données</translation>
    </message>
    <message>
        <source>database password</source>
        <translation>mot de passe de la base de données</translation>
    </message>
    <message>
        <source>database host</source>
        <translation>serveur de la base de données</translation>
    </message>
    <message>
        <source>directory of the application&apos;s programs; a &quot;/&quot; and the name follow</source>
        <translation>dossier des programmes de l’application ; « / » et le nom suivent</translation>
    </message>
    <message>
        <source>picture file (PBM) that a receipt printer prints for the logo</source>
        <translation>fichier d’image (PBM) qu’une imprimante de tickets imprime comme logo</translation>
    </message>
    <message>
        <source>no translation: English labels</source>
        <translation>pas de traduction : libellés anglais</translation>
    </message>
    <message>
        <source>the root directory</source>
        <translation>le dossier racine</translation>
    </message>
    <message>
        <source>no file can be opened: no log</source>
        <translation>aucun fichier ne peut être ouvert : pas de journal</translation>
    </message>
    <message>
        <source>no log</source>
        <translation>pas de journal</translation>
    </message>
    <message>
        <source>the picture in the printer&apos;s own memory</source>
        <translation>l’image dans la mémoire de l’imprimante</translation>
    </message>
    <message>
        <source>32, the printer&apos;s own width; the same for 0</source>
        <translation>32, la largeur de l’imprimante ; de même pour 0</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>impression</translation>
    </message>
    <message>
        <source>start-up</source>
        <translation>démarrage</translation>
    </message>
    <message>
        <source>logger</source>
        <translation>journal</translation>
    </message>
    <message>
        <source>database</source>
        <translation>base de données</translation>
    </message>
    <message>
        <source>utilities</source>
        <translation>outils</translation>
    </message>
    <message>
        <source>receipt printer</source>
        <translation>imprimante de tickets</translation>
    </message>
    <message>
        <source>character</source>
        <translation>caractère</translation>
    </message>
    <message>
        <source>line</source>
        <translation>ligne</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>exemplaire</translation>
    </message>
    <message>
        <source>row</source>
        <translation>ligne</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>the program %1 is not installed; install the package %2</source>
        <translation>le programme %1 n’est pas installé ; installez le paquet %2</translation>
    </message>
    <message>
        <source>the text form has no room for &apos;;&apos; and &apos;&quot;&apos;, characters outside Latin-1, and more than 2044 bytes</source>
        <translation>la forme texte ne peut pas contenir « ; », « &quot; », de caractères hors de Latin-1 ni plus de 2044 octets</translation>
    </message>
    <message>
        <source>the XML form has no room for pairs outside the first block, names that are no XML names, and &apos;&quot;&apos;, &apos;&lt;&apos;, &apos;&amp;&apos; and line breaks in values</source>
        <translation>la forme XML ne peut pas contenir de paires hors du premier bloc, de noms qui ne sont pas des noms XML, ni « &quot; », « &lt; », « &amp; » et les sauts de ligne dans les valeurs</translation>
    </message>
    <message>
        <source>it is no regular file; give one</source>
        <translation>ce n’est pas un fichier ordinaire ; indiquez-en un</translation>
    </message>
    <message>
        <source>nothing is found in an XML file that begins with a declaration or a remark; remove what stands before the first element</source>
        <translation>dans un fichier XML qui commence par une déclaration ou un commentaire, rien n’est trouvé ; retirez ce qui précède le premier élément</translation>
    </message>
    <message>
        <source>elements nest deeper than %1</source>
        <translation>les éléments sont imbriqués à plus de %1 niveaux</translation>
    </message>
    <message>
        <source>%1; nothing is found in XML that is not well-formed</source>
        <translation>%1 ; dans un XML mal formé, rien n’est trouvé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; would not survive: %2</source>
        <translation>« %1 » serait perdu : %2</translation>
    </message>
    <message>
        <source>the link leads to no file; mend or remove it</source>
        <translation>le lien ne mène à aucun fichier ; corrigez-le ou retirez-le</translation>
    </message>
    <message>
        <source>the file may not be written</source>
        <translation>le fichier est protégé en écriture</translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation>son dossier ne peut pas être créé</translation>
    </message>
    <message>
        <source>another program is writing this file; try again when it is done</source>
        <translation>un autre programme écrit ce fichier ; réessayez quand il aura fini</translation>
    </message>
    <message>
        <source>%1 cannot be opened (%2)</source>
        <translation>%1 ne peut pas être ouvert (%2)</translation>
    </message>
    <message>
        <source>it cannot be locked (%1)</source>
        <translation>il ne peut pas être verrouillé (%1)</translation>
    </message>
    <message>
        <source>it belongs to another user or group, and would not any more; do this as its owner</source>
        <translation>il appartient à un autre utilisateur ou groupe, et ce ne serait plus le cas ; faites-le en tant que propriétaire</translation>
    </message>
    <message>
        <source>%1; the file is unchanged</source>
        <translation>%1 ; le fichier est inchangé</translation>
    </message>
    <message>
        <source>%1 between a block&apos;s name and its brace</source>
        <translation>%1 entre le nom d’un bloc et son accolade</translation>
    </message>
    <message>
        <source>%1, which belongs to no setting</source>
        <translation>%1, qui n’appartient à aucun réglage</translation>
    </message>
    <message>
        <source>%1 between a closing brace and the next &quot;;&quot; (is one missing?)</source>
        <translation>%1 entre une accolade fermante et le « ; » suivant (en manque-t-il un ?)</translation>
    </message>
    <message>
        <source>block %1 without a brace</source>
        <translation>le bloc %1 sans accolade</translation>
    </message>
    <message>
        <source>the end of %1: a name has room for %2 bytes, blanks in front included</source>
        <translation>la fin de %1 : un nom peut contenir %2 octets au plus, espaces de tête compris</translation>
    </message>
    <message>
        <source>blocks nested deeper than %1, and everything behind</source>
        <translation>les blocs imbriqués à plus de %1 niveaux, et tout ce qui suit</translation>
    </message>
    <message>
        <source>block %1: only the first top-level block is read and written</source>
        <translation>le bloc %1 : seul le premier bloc extérieur est lu et écrit</translation>
    </message>
    <message>
        <source>empty block %1</source>
        <translation>le bloc vide %1</translation>
    </message>
    <message>
        <source>this value of %1: line %2 gives another</source>
        <translation>cette valeur de %1 : la ligne %2 en donne une autre</translation>
    </message>
    <message>
        <source>the quotes inside the value of %1 (is a &quot;;&quot; missing?)</source>
        <translation>les guillemets dans la valeur de %1 (manque-t-il un « ; » ?)</translation>
    </message>
    <message>
        <source>the end of the value of %1: a value has room for %2 bytes</source>
        <translation>la fin de la valeur de %1 : une valeur peut contenir %2 octets au plus</translation>
    </message>
    <message>
        <source>everything behind this brace, which closes no block</source>
        <translation>tout ce qui suit cette accolade, qui ne ferme aucun bloc</translation>
    </message>
    <message>
        <source>the remark &quot;%1&quot;</source>
        <translation>le commentaire « %1 »</translation>
    </message>
    <message>
        <source>the text &quot;%1&quot;</source>
        <translation>le texte « %1 »</translation>
    </message>
    <message>
        <source>the processing instruction &quot;%1&quot;</source>
        <translation>l’instruction de traitement « %1 »</translation>
    </message>
    <message>
        <source>the document type</source>
        <translation>le type de document</translation>
    </message>
    <message>
        <source>the entity &quot;%1&quot;</source>
        <translation>l’entité « %1 »</translation>
    </message>
    <message>
        <source>the XML declaration</source>
        <translation>la déclaration XML</translation>
    </message>
    <message>
        <source>this is no configuration but %1</source>
        <translation>ce n’est pas une configuration mais %1</translation>
    </message>
    <message>
        <source>&quot;palvestrin config set&quot; begins a new file</source>
        <translation>« palvestrin config set » commence un nouveau fichier</translation>
    </message>
    <message>
        <source>XML, and the programs read this file as text</source>
        <translation>du XML, et les programmes lisent ce fichier comme du texte</translation>
    </message>
    <message>
        <source>&quot;palvestrin config convert&quot; makes it text</source>
        <translation>« palvestrin config convert » en fait du texte</translation>
    </message>
    <message>
        <source>belongs to no setting and is dropped</source>
        <translation>n’appartient à aucun réglage et est ignoré</translation>
    </message>
    <message>
        <source>the block %1 has no &quot;{&quot;: everything behind its name is dropped</source>
        <translation>le bloc %1 n’a pas de « { » : tout ce qui suit son nom est ignoré</translation>
    </message>
    <message>
        <source>put a &quot;{&quot; behind its name and the &quot;:&quot;</source>
        <translation>mettez un « { » après son nom et le « : »</translation>
    </message>
    <message>
        <source>the block %1 is never closed</source>
        <translation>le bloc %1 n’est jamais fermé</translation>
    </message>
    <message>
        <source>put &quot;};&quot; where it ends</source>
        <translation>mettez « }; » là où il se termine</translation>
    </message>
    <message>
        <source>stands between a block&apos;s name and its &quot;{&quot; and is dropped</source>
        <translation>se trouve entre le nom d’un bloc et son « { » et est ignoré</translation>
    </message>
    <message>
        <source>%1 is lost: the &quot;:&quot; of the remark in line %2 drops everything up to the next &quot;{&quot;</source>
        <translation>%1 est perdu : le « : » du commentaire de la ligne %2 élimine tout jusqu’au « { » suivant</translation>
    </message>
    <message>
        <source>take the remark out; this form of file has no remarks</source>
        <translation>retirez le commentaire ; ce type de fichier n’en a pas</translation>
    </message>
    <message>
        <source>%1 is lost: the block %2 in line %3 has no &quot;{&quot; of its own</source>
        <translation>%1 est perdu : le bloc %2 de la ligne %3 n’a pas son propre « { »</translation>
    </message>
    <message>
        <source>put a &quot;{&quot; behind the &quot;:&quot; of that block</source>
        <translation>mettez un « { » après le « : » de ce bloc</translation>
    </message>
    <message>
        <source>a block</source>
        <translation>un bloc</translation>
    </message>
    <message>
        <source>this remark is read as %1 of an odd name, which nobody looks for</source>
        <translation>ce commentaire est lu comme %1 au nom bizarre, que personne ne cherche</translation>
    </message>
    <message>
        <source>this form of file has no remarks</source>
        <translation>ce type de fichier n’a pas de commentaires</translation>
    </message>
    <message>
        <source>a setting</source>
        <translation>un réglage</translation>
    </message>
    <message>
        <source>the &quot;}&quot; in the remark %1 ends the block here</source>
        <translation>le « } » dans le commentaire %1 termine ici le bloc</translation>
    </message>
    <message>
        <source>take it out, or put in the &quot;=&quot; or &quot;;&quot; that it lacks</source>
        <translation>retirez-le, ou ajoutez le « = » ou le « ; » qui manque</translation>
    </message>
    <message>
        <source>%1 is skipped: the &quot;;&quot; behind the &quot;}&quot; in line %2 is missing</source>
        <translation>%1 est sauté : le « ; » après le « } » de la ligne %2 manque</translation>
    </message>
    <message>
        <source>put a &quot;;&quot; behind that brace</source>
        <translation>mettez un « ; » après cette accolade</translation>
    </message>
    <message>
        <source>nothing from here on is read: the &quot;}&quot; in line %1 closes no block</source>
        <translation>à partir d’ici rien n’est lu : le « } » de la ligne %1 ne ferme aucun bloc</translation>
    </message>
    <message>
        <source>nothing from here on is read: blocks nest deeper than %1</source>
        <translation>à partir d’ici rien n’est lu : les blocs sont imbriqués à plus de %1 niveaux</translation>
    </message>
    <message>
        <source>take that brace out</source>
        <translation>retirez cette accolade</translation>
    </message>
    <message>
        <source>nothing of this file is read: %1</source>
        <translation>rien n’est lu de ce fichier : %1</translation>
    </message>
    <message>
        <source>nothing is found in an XML configuration that begins with a declaration or a remark</source>
        <translation>dans une configuration XML qui commence par une déclaration ou un commentaire, rien n’est trouvé</translation>
    </message>
    <message>
        <source>take out what stands in front of the first element</source>
        <translation>retirez ce qui précède le premier élément</translation>
    </message>
    <message>
        <source>%1 is text between elements, which sets nothing</source>
        <translation>%1 est du texte entre des éléments, qui ne règle rien</translation>
    </message>
    <message>
        <source>settings are attributes</source>
        <translation>les réglages sont des attributs</translation>
    </message>
    <message>
        <source>a file of more than 1 MiB</source>
        <translation>un fichier de plus de 1 Mio</translation>
    </message>
    <message>
        <source>a binary file, or text in UTF-16</source>
        <translation>un fichier binaire, ou du texte en UTF-16</translation>
    </message>
    <message>
        <source>XML with more than 1000 attributes in an element</source>
        <translation>du XML avec plus de 1000 attributs dans un élément</translation>
    </message>
    <message>
        <source>an INI file</source>
        <translation>un fichier INI</translation>
    </message>
    <message>
        <source>text without a block &quot;palvestrin: {&quot;</source>
        <translation>du texte sans bloc « palvestrin: { »</translation>
    </message>
    <message>
        <source>the value of %1 is UTF-8, and is read as Latin-1: %2</source>
        <translation>la valeur de %1 est en UTF-8, et est lue en Latin-1 : %2</translation>
    </message>
    <message>
        <source>save the file as Latin-1, or use &quot;palvestrin config set&quot;</source>
        <translation>enregistrez le fichier en Latin-1, ou utilisez « palvestrin config set »</translation>
    </message>
    <message>
        <source>%1 is read as part of the value of %2, whose &quot;;&quot; is missing</source>
        <translation>%1 est lu comme une partie de la valeur de %2, dont le « ; » manque</translation>
    </message>
    <message>
        <source>put a &quot;;&quot; behind that value</source>
        <translation>mettez un « ; » après cette valeur</translation>
    </message>
    <message>
        <source>%1 is read as part of the remark in line %2, which goes on up to the next &quot;;&quot;</source>
        <translation>%1 est lu comme une partie du commentaire de la ligne %2, qui va jusqu’au « ; » suivant</translation>
    </message>
    <message>
        <source>the value of %1 has %2 bytes and is cut to %3</source>
        <translation>la valeur de %1 a %2 octets et est coupée à %3</translation>
    </message>
    <message>
        <source>is a &quot;;&quot; missing in it?</source>
        <translation>y manque-t-il un « ; » ?</translation>
    </message>
    <message>
        <source>a quote inside the value of %1 vanishes: it is read as %2</source>
        <translation>un guillemet dans la valeur de %1 disparaît : on lit %2</translation>
    </message>
    <message>
        <source>quotes stand around a value or nowhere</source>
        <translation>les guillemets entourent une valeur, ou il n’y en a pas</translation>
    </message>
    <message>
        <source>did you mean &quot;%1&quot;?</source>
        <translation>vouliez-vous dire « %1 » ?</translation>
    </message>
    <message>
        <source>Existing log</source>
        <translation>Journal existant</translation>
    </message>
    <message>
        <source>receipt printer, copy number</source>
        <translation>imprimante de tickets, nombre d’exemplaires</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>never found: only the first top-level block is searched</source>
        <translation>jamais trouvé : seul le premier bloc du fichier est parcouru</translation>
    </message>
    <message>
        <source>no program reads this</source>
        <translation>aucun programme ne lit ceci</translation>
    </message>
    <message>
        <source>no program reads this; did you mean %1?</source>
        <translation>aucun programme ne lit ceci ; vouliez-vous dire %1 ?</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>It would never be found: the first block of the file is another.</source>
        <translation>Il ne serait jamais trouvé : le premier bloc du fichier est un autre.</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Modifier %1</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Reload the file</source>
        <translation>&amp;Recharger le fichier</translation>
    </message>
    <message>
        <source>Show a &amp;job of your own…</source>
        <translation>Afficher votre propre &amp;travail…</translation>
    </message>
    <message>
        <source>Save the &amp;paper as a picture…</source>
        <translation>Enregistrer le &amp;papier en image…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Copy the paper as text</source>
        <translation>&amp;Copier le papier en texte</translation>
    </message>
    <message>
        <source>&amp;Find a setting</source>
        <translation>C&amp;hercher un réglage</translation>
    </message>
    <message>
        <source>Reset the &amp;setting</source>
        <translation>Réta&amp;blir le réglage</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Larger paper</source>
        <translation>Papier plus &amp;grand</translation>
    </message>
    <message>
        <source>&amp;Smaller paper</source>
        <translation>Papier plus &amp;petit</translation>
    </message>
    <message>
        <source>&amp;Fit the paper</source>
        <translation>&amp;Ajuster le papier</translation>
    </message>
    <message>
        <source>Go to the &amp;documents</source>
        <translation>Aller aux &amp;documents</translation>
    </message>
    <message>
        <source>&amp;All keys</source>
        <translation>&amp;Toutes les clés</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;How it works</source>
        <translation>&amp;Mode d’emploi</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Begin with a preset</source>
        <translation>Commencer avec un modèle</translation>
    </message>
    <message>
        <source>%1[*] – Palvestrin Print</source>
        <translation>%1[*] – Palvestrin Print</translation>
    </message>
    <message>
        <source>About Palvestrin Print</source>
        <translation>À propos de Palvestrin Print</translation>
    </message>
    <message>
        <source>&lt;b&gt;Palvestrin Print %1&lt;/b&gt;&lt;p&gt;Tickets, receipts and invoices of a restaurant or a shop, on the paper of its printers.&lt;/p&gt;</source>
        <translation>&lt;b&gt;Palvestrin Print %1&lt;/b&gt;&lt;p&gt;Bons, reçus et factures d’un restaurant ou d’un magasin, sur le papier de ses imprimantes.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>ValueEditor</name>
    <message>
        <source>Default: %1</source>
        <translation>Par défaut : %1</translation>
    </message>
    <message>
        <source>Choose a folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Choose a file…</source>
        <translation>Choisir un fichier…</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Afficher le mot de passe</translation>
    </message>
</context>
</TS>
