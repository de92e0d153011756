<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>ActionSummary</name>
    <message numerus="yes">
        <source>Moved %Ln file(s) to the Trash (%1 is freed when the Trash is emptied)</source>
        <translation>
            <numerusform>%Ln fichier mis à la corbeille (%1 seront libérés quand la corbeille sera vidée)</numerusform>
            <numerusform>%Ln fichiers mis à la corbeille (%1 seront libérés quand la corbeille sera vidée)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleted %Ln file(s)</source>
        <translation>
            <numerusform>%Ln fichier supprimé</numerusform>
            <numerusform>%Ln fichiers supprimés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Replaced %Ln file(s) by links or clones</source>
        <translation>
            <numerusform>%Ln fichier remplacé par un lien ou un clone</numerusform>
            <numerusform>%Ln fichiers remplacés par des liens ou des clones</numerusform>
        </translation>
    </message>
    <message>
        <source> — %1 freed</source>
        <translation> — %1 libérés</translation>
    </message>
    <message numerus="yes">
        <source>Put back %Ln file(s) from the Trash.</source>
        <translation>
            <numerusform>%Ln fichier restauré depuis la corbeille.</numerusform>
            <numerusform>%Ln fichiers restaurés depuis la corbeille.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Replaced %Ln file(s) by clones — %1 freed.</source>
        <translation>
            <numerusform>%Ln fichier remplacé par un clone — %1 libérés.</numerusform>
            <numerusform>%Ln fichiers remplacés par des clones — %1 libérés.</numerusform>
        </translation>
    </message>
    <message>
        <source>in Trash</source>
        <translation>dans la corbeille</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>supprimé</translation>
    </message>
    <message>
        <source>replaced by link</source>
        <translation>remplacé par un lien</translation>
    </message>
    <message>
        <source>replaced by hard link</source>
        <translation>remplacé par un lien physique</translation>
    </message>
    <message>
        <source>replaced by clone</source>
        <translation>remplacé par un clone</translation>
    </message>
</context>
<context>
    <name>AttributeCatalogue</name>
    <message>
        <source>File size</source>
        <translation>Taille du fichier</translation>
    </message>
    <message>
        <source>Size of the file in bytes</source>
        <translation>Taille du fichier en octets</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Name of the file on disk</source>
        <translation>Nom du fichier sur le disque</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Nom affiché</translation>
    </message>
    <message>
        <source>Name of the item as it is displayed</source>
        <translation>Nom de l’élément tel qu’il est affiché</translation>
    </message>
    <message>
        <source>File created</source>
        <translation>Fichier créé</translation>
    </message>
    <message>
        <source>Date when the file was created, where the file system records it</source>
        <translation>Date de création du fichier, là où le système de fichiers l’enregistre</translation>
    </message>
    <message>
        <source>File modified</source>
        <translation>Fichier modifié</translation>
    </message>
    <message>
        <source>Date when the file&apos;s content last changed on disk</source>
        <translation>Date de la dernière modification du contenu du fichier sur le disque</translation>
    </message>
    <message>
        <source>Content modified</source>
        <translation>Contenu modifié</translation>
    </message>
    <message>
        <source>Date when the item&apos;s content was last modified</source>
        <translation>Date de la dernière modification du contenu de l’élément</translation>
    </message>
    <message>
        <source>Content type</source>
        <translation>Type de contenu</translation>
    </message>
    <message>
        <source>Type of the item&apos;s content, as a MIME type</source>
        <translation>Type du contenu de l’élément, sous forme de type MIME</translation>
    </message>
    <message>
        <source>Content type tree</source>
        <translation>Arborescence des types de contenu</translation>
    </message>
    <message>
        <source>Type of the item&apos;s content and the types it derives from</source>
        <translation>Type du contenu de l’élément et types dont il dérive</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Description of the kind of item</source>
        <translation>Description du type d’élément</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Tags that the user gave the item</source>
        <translation>Étiquettes que l’utilisateur a données à l’élément</translation>
    </message>
    <message>
        <source>Where from</source>
        <translation>Provenance</translation>
    </message>
    <message>
        <source>Addresses the item was downloaded from</source>
        <translation>Adresses d’où l’élément a été téléchargé</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Duration of the audio or video, in seconds</source>
        <translation>Durée de l’audio ou de la vidéo, en secondes</translation>
    </message>
    <message>
        <source>Total bit rate</source>
        <translation>Débit total</translation>
    </message>
    <message>
        <source>Bit rate of all audio and video streams together, in bits per second</source>
        <translation>Débit de tous les flux audio et vidéo ensemble, en bits par seconde</translation>
    </message>
    <message>
        <source>Codecs</source>
        <translation>Codecs</translation>
    </message>
    <message>
        <source>Codecs of the audio and video streams</source>
        <translation>Codecs des flux audio et vidéo</translation>
    </message>
    <message>
        <source>Audio bit rate</source>
        <translation>Débit audio</translation>
    </message>
    <message>
        <source>Bit rate of the audio, in bits per second</source>
        <translation>Débit de l’audio, en bits par seconde</translation>
    </message>
    <message>
        <source>Video bit rate</source>
        <translation>Débit vidéo</translation>
    </message>
    <message>
        <source>Bit rate of the video, in bits per second</source>
        <translation>Débit de la vidéo, en bits par seconde</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Fréquence d’échantillonnage</translation>
    </message>
    <message>
        <source>Sample rate of the audio, in samples per second</source>
        <translation>Fréquence d’échantillonnage de l’audio, en échantillons par seconde</translation>
    </message>
    <message>
        <source>Audio channels</source>
        <translation>Canaux audio</translation>
    </message>
    <message>
        <source>Number of audio channels</source>
        <translation>Nombre de canaux audio</translation>
    </message>
    <message>
        <source>Pixel width</source>
        <translation>Largeur en pixels</translation>
    </message>
    <message>
        <source>Width of the image or video, in pixels</source>
        <translation>Largeur de l’image ou de la vidéo, en pixels</translation>
    </message>
    <message>
        <source>Pixel height</source>
        <translation>Hauteur en pixels</translation>
    </message>
    <message>
        <source>Height of the image or video, in pixels</source>
        <translation>Hauteur de l’image ou de la vidéo, en pixels</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Title of the item</source>
        <translation>Titre de l’élément</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Album that the recording belongs to</source>
        <translation>Album auquel appartient l’enregistrement</translation>
    </message>
    <message>
        <source>Authors</source>
        <translation>Auteurs</translation>
    </message>
    <message>
        <source>Authors, artists or performers of the item</source>
        <translation>Auteurs, artistes ou interprètes de l’élément</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Compositeur</translation>
    </message>
    <message>
        <source>Composer of the music</source>
        <translation>Compositeur de la musique</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Musical genre of the recording</source>
        <translation>Genre musical de l’enregistrement</translation>
    </message>
    <message>
        <source>Year recorded</source>
        <translation>Année d’enregistrement</translation>
    </message>
    <message>
        <source>Year when the recording was made</source>
        <translation>Année où l’enregistrement a été fait</translation>
    </message>
    <message>
        <source>Recording date</source>
        <translation>Date d’enregistrement</translation>
    </message>
    <message>
        <source>Date when the recording was made</source>
        <translation>Date à laquelle l’enregistrement a été fait</translation>
    </message>
    <message>
        <source>Content created</source>
        <translation>Contenu créé</translation>
    </message>
    <message>
        <source>Date when the content was created: when a photo was taken or a video recorded</source>
        <translation>Date de création du contenu&#x202f;: prise de vue d’une photo ou enregistrement d’une vidéo</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>Numéro de piste</translation>
    </message>
    <message>
        <source>Number of the track on its album</source>
        <translation>Numéro de la piste sur son album</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Latitude where the item was made, in degrees (north positive)</source>
        <translation>Latitude du lieu où l’élément a été créé, en degrés (positive au nord)</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Longitude where the item was made, in degrees (east positive)</source>
        <translation>Longitude du lieu où l’élément a été créé, en degrés (positive à l’est)</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>Altitude where the item was made, in metres above sea level</source>
        <translation>Altitude du lieu où l’élément a été créé, en mètres au-dessus du niveau de la mer</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Orientation of the image as displayed: 0 landscape, 1 portrait</source>
        <translation>Orientation de l’image telle qu’elle est affichée&#x202f;: 0 paysage, 1 portrait</translation>
    </message>
    <message>
        <source>Device make</source>
        <translation>Marque de l’appareil</translation>
    </message>
    <message>
        <source>Manufacturer of the camera or device that made the item</source>
        <translation>Fabricant de l’appareil photo ou de l’appareil qui a créé l’élément</translation>
    </message>
    <message>
        <source>Device model</source>
        <translation>Modèle de l’appareil</translation>
    </message>
    <message>
        <source>Model of the camera or device that made the item</source>
        <translation>Modèle de l’appareil photo ou de l’appareil qui a créé l’élément</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>Temps de pose</translation>
    </message>
    <message>
        <source>Exposure time of the photo, in seconds</source>
        <translation>Temps de pose de la photo, en secondes</translation>
    </message>
    <message>
        <source>F number</source>
        <translation>Nombre d’ouverture</translation>
    </message>
    <message>
        <source>Aperture of the lens as an f-number</source>
        <translation>Ouverture de l’objectif, en nombre f</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Distance focale</translation>
    </message>
    <message>
        <source>Focal length of the lens, in millimetres</source>
        <translation>Distance focale de l’objectif, en millimètres</translation>
    </message>
    <message>
        <source>ISO speed</source>
        <translation>Sensibilité ISO</translation>
    </message>
    <message>
        <source>ISO speed of the photo</source>
        <translation>Sensibilité ISO de la photo</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Whether the flash fired</source>
        <translation>Si le flash s’est déclenché</translation>
    </message>
    <message>
        <source>Lens model</source>
        <translation>Modèle d’objectif</translation>
    </message>
    <message>
        <source>Model of the lens</source>
        <translation>Modèle de l’objectif utilisé</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Description of the item&apos;s content</source>
        <translation>Description du contenu de l’élément</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>Intitulé</translation>
    </message>
    <message>
        <source>Short summary of the item&apos;s content</source>
        <translation>Bref résumé du contenu de l’élément</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Keywords that describe the item</source>
        <translation>Mots-clés qui décrivent l’élément</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Droits d’auteur</translation>
    </message>
    <message>
        <source>Copyright notice of the item</source>
        <translation>Mention de droits d’auteur de l’élément</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Créateur</translation>
    </message>
    <message>
        <source>Application that created the content</source>
        <translation>Application qui a créé le contenu</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Identifier of the item, such as a photo&apos;s unique ID</source>
        <translation>Identifiant de l’élément, comme l’identifiant unique d’une photo</translation>
    </message>
    <message>
        <source>Original source</source>
        <translation>Source d’origine</translation>
    </message>
    <message>
        <source>Original source of the content, such as the supplier of a photo</source>
        <translation>Source d’origine du contenu, comme le fournisseur d’une photo</translation>
    </message>
</context>
<context>
    <name>AttributeTolerance</name>
    <message>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>30&#xa0;m</source>
        <translation>30&#xa0;m</translation>
    </message>
    <message>
        <source>arcseconds (1″ ≈ %1)</source>
        <translation>secondes d’arc (1″ ≈ %1)</translation>
    </message>
    <message>
        <source>arcseconds (1″ ≈ %1 on the equator)</source>
        <translation>secondes d’arc (1″ ≈ %1 à l’équateur)</translation>
    </message>
    <message>
        <source>100&#xa0;ft</source>
        <translation>100&#xa0;ft</translation>
    </message>
</context>
<context>
    <name>AudioFingerprinter</name>
    <message>
        <source>Out of memory.</source>
        <translation>Mémoire insuffisante.</translation>
    </message>
    <message>
        <source>The file is not a recording that can be read.</source>
        <translation>Le fichier n’est pas un enregistrement lisible.</translation>
    </message>
    <message>
        <source>The file holds no sound.</source>
        <translation>Le fichier ne contient aucun son.</translation>
    </message>
    <message>
        <source>The sound cannot be decoded.</source>
        <translation>Le son ne peut pas être décodé.</translation>
    </message>
    <message>
        <source>Decoding the recording took too long.</source>
        <translation>Le décodage de l’enregistrement a pris trop de temps.</translation>
    </message>
    <message>
        <source>The recording is too short to compare.</source>
        <translation>L’enregistrement est trop court pour être comparé.</translation>
    </message>
</context>
<context>
    <name>AutomaticSelection</name>
    <message>
        <source>duration</source>
        <translation>durée</translation>
    </message>
    <message>
        <source>file name</source>
        <translation>nom de fichier</translation>
    </message>
    <message>
        <source>Warning: You may end up selecting documents that are completely unrelated and that only have the same %1</source>
        <translation>Attention&#x202f;: vous risquez de sélectionner des documents sans aucun rapport, qui ont seulement la même valeur «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>attribute</source>
        <translation>attribut</translation>
    </message>
</context>
<context>
    <name>ByteSize</name>
    <message>
        <source>kB</source>
        <translation>ko</translation>
    </message>
    <message>
        <source>KiB</source>
        <translation>Kio</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>MiB</source>
        <translation>Mio</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>GiB</source>
        <translation>Gio</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>To</translation>
    </message>
    <message>
        <source>TiB</source>
        <translation>Tio</translation>
    </message>
    <message>
        <source>B</source>
        <translation>o</translation>
    </message>
</context>
<context>
    <name>CloneAlerts</name>
    <message>
        <source>Folder comparison was enabled</source>
        <translation>La comparaison des dossiers était activée</translation>
    </message>
    <message>
        <source>You might clone more duplicate files if folder comparison is turned off in the initial search.

For example, a file that exists in a duplicate folder might also exist separately.</source>
        <translation>Vous pourriez cloner davantage de fichiers en double en désactivant la comparaison des dossiers lors de la recherche.

Par exemple, un fichier d’un dossier en double peut aussi exister ailleurs, isolé.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>No file among the selection can be cloned</source>
        <translation>Aucun fichier de la sélection ne peut être cloné</translation>
    </message>
    <message>
        <source>The selection should contain at least two duplicate files.

The files should have write permission, they should not already be clones, and they should be on the same volume, on a file system that shares storage between files (Btrfs, XFS, bcachefs).</source>
        <translation>La sélection doit contenir au moins deux fichiers en double.

Les fichiers doivent être modifiables, ne pas être déjà des clones et se trouver sur le même volume, sur un système de fichiers qui partage le stockage entre fichiers (Btrfs, XFS, bcachefs).</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>a clone</source>
        <translation>un clone</translation>
    </message>
    <message>
        <source>clones</source>
        <translation>des clones</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 fichier</translation>
    </message>
    <message>
        <source>%1 different files</source>
        <translation>%1 fichiers différents</translation>
    </message>
    <message>
        <source>Do you want to replace %1, by %2 of %3? %4 on disk will be reclaimed.</source>
        <translation>Voulez-vous remplacer %1 par %2 de %3&#x202f;? %4 d’espace disque seront récupérés.</translation>
    </message>
    <message>
        <source>Creation and modification dates, tags, extended attributes, permissions and other metadata will be kept. Clones take no disk space of their own until their contents change.</source>
        <translation>Les dates de création et de modification, les étiquettes, les attributs étendus, les permissions et les autres métadonnées sont conservés. Les clones n’occupent pas d’espace propre tant que leur contenu ne change pas.</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Cloner</translation>
    </message>
    <message>
        <source>View Cloning Plan</source>
        <translation>Voir le plan de clonage</translation>
    </message>
    <message>
        <source>Warning: write-protected files</source>
        <translation>Attention&#x202f;: fichiers protégés en écriture</translation>
    </message>
    <message>
        <source>%1 files to be cloned are write-protected. As you own these files, you may bypass write-protection.

Do you want to clone them anyway?</source>
        <translation>%1 fichiers à cloner sont protégés en écriture. Comme ces fichiers vous appartiennent, vous pouvez passer outre cette protection.

Voulez-vous quand même les cloner&#x202f;?</translation>
    </message>
    <message>
        <source>Skip Them</source>
        <translation>Les ignorer</translation>
    </message>
    <message>
        <source>Clone Them</source>
        <translation>Les cloner</translation>
    </message>
    <message>
        <source>Warning: other file owner</source>
        <translation>Attention&#x202f;: autre propriétaire</translation>
    </message>
    <message>
        <source>%1 files are owned by another user account. File permissions allow you to modify them, but replacing them by clones will set you as the file owner.

Do you want to clone them anyway?</source>
        <translation>%1 fichiers appartiennent à un autre compte utilisateur. Les permissions vous autorisent à les modifier, mais les remplacer par des clones fera de vous leur propriétaire.

Voulez-vous quand même les cloner&#x202f;?</translation>
    </message>
    <message>
        <source>Clone and Change Owner</source>
        <translation>Cloner et changer de propriétaire</translation>
    </message>
    <message>
        <source>Cloning files…</source>
        <translation>Clonage des fichiers…</translation>
    </message>
    <message>
        <source>Planning cloning…</source>
        <translation>Préparation du clonage…</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Interrompre</translation>
    </message>
    <message numerus="yes">
        <source>%1 duplicate(s) among all found files</source>
        <translation>
            <numerusform>%1 doublon parmi tous les fichiers trouvés</numerusform>
            <numerusform>%1 doublons parmi tous les fichiers trouvés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 duplicate(s) among the selected files</source>
        <translation>
            <numerusform>%1 doublon parmi les fichiers sélectionnés</numerusform>
            <numerusform>%1 doublons parmi les fichiers sélectionnés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CloneWorker</name>
    <message>
        <source>“%1” no longer has the content of “%2”</source>
        <translation>«&#xa0;%1&#xa0;» n’a plus le contenu de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>The operations journal could not record the step: %1</source>
        <translation>Le journal des opérations n’a pas pu enregistrer l’étape&#x202f;: %1</translation>
    </message>
    <message>
        <source>“%1” could not be moved aside: %2</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être mis de côté&#x202f;: %2</translation>
    </message>
    <message>
        <source>“%1” could not be cloned from “%2”: %3</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être cloné depuis «&#xa0;%2&#xa0;»&#x202f;: %3</translation>
    </message>
    <message>
        <source>The metadata of “%1” could not be carried over to its clone; it was left as it was</source>
        <translation>Les métadonnées de «&#xa0;%1&#xa0;» n’ont pas pu être reportées sur son clone&#x202f;; le fichier a été laissé tel quel</translation>
    </message>
    <message>
        <source>“%1” was cloned, but its former copy “%2” could not be removed: %3</source>
        <translation>«&#xa0;%1&#xa0;» a été cloné, mais son ancienne copie «&#xa0;%2&#xa0;» n’a pas pu être supprimée&#x202f;: %3</translation>
    </message>
</context>
<context>
    <name>DegreeMinuteSecondFormatter</name>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>E</source>
        <translation>E</translation>
    </message>
    <message>
        <source>W</source>
        <translation>O</translation>
    </message>
</context>
<context>
    <name>DeleteActions</name>
    <message>
        <source>“%1” could not be removed: %2</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être supprimé&#x202f;: %2</translation>
    </message>
    <message>
        <source>The operations journal could not record the step: %1</source>
        <translation>Le journal des opérations n’a pas pu enregistrer l’étape&#x202f;: %1</translation>
    </message>
    <message>
        <source>The replacement could not be made: %1</source>
        <translation>Le remplacement n’a pas pu être créé&#x202f;: %1</translation>
    </message>
    <message>
        <source>The replacement could not be put in place: %1</source>
        <translation>Le remplacement n’a pas pu être mis en place&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>DeleteChecks</name>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>Left alone because they changed since the search, or no unchanged copy of them remains:
%1</source>
        <translation>Laissés tels quels parce qu’ils ont changé depuis la recherche, ou qu’il ne reste aucune copie inchangée d’eux&#x202f;:
%1</translation>
    </message>
    <message>
        <source>To replace deleted duplicates, select the reference file to preserve in the top list, and the duplicates to replace in the bottom list.</source>
        <translation>Pour remplacer les doublons supprimés, sélectionnez dans la liste du haut le fichier de référence à conserver, et dans la liste du bas les doublons à remplacer.</translation>
    </message>
    <message>
        <source>No item is selected in the bottom list</source>
        <translation>Aucun élément n’est sélectionné dans la liste du bas</translation>
    </message>
    <message>
        <source>Delete Without Replacing</source>
        <translation>Supprimer sans remplacer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Please make sure that the same item is not selected both in the top and bottom lists</source>
        <translation>Veillez à ce que le même élément ne soit pas sélectionné à la fois dans la liste du haut et dans celle du bas</translation>
    </message>
    <message>
        <source>Warning: you have selected ALL the dupes of at least one file</source>
        <translation>Attention&#x202f;: vous avez sélectionné TOUS les doublons d’au moins un fichier</translation>
    </message>
    <message>
        <source>You should probably keep one version of this file.</source>
        <translation>Vous devriez sans doute garder un exemplaire de ce fichier.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continuer quand même</translation>
    </message>
    <message>
        <source>Clones may be unsupported on this volume</source>
        <translation>Les clones ne sont peut-être pas pris en charge sur ce volume</translation>
    </message>
    <message>
        <source>Only file systems that share storage between files, such as Btrfs, XFS or bcachefs, can make clones.</source>
        <translation>Seuls les systèmes de fichiers qui partagent le stockage entre fichiers, comme Btrfs, XFS ou bcachefs, peuvent créer des clones.</translation>
    </message>
    <message>
        <source>Hard links, desktop links or symbolic links may be unsupported on this volume</source>
        <translation>Les liens physiques, les raccourcis de bureau ou les liens symboliques ne sont peut-être pas pris en charge sur ce volume</translation>
    </message>
    <message>
        <source>Drives formatted as FAT, exFAT or NTFS, and network shares, may refuse links.</source>
        <translation>Les disques formatés en FAT, exFAT ou NTFS, ainsi que les partages réseau, peuvent refuser les liens.</translation>
    </message>
    <message>
        <source>“%1” in “%2”</source>
        <translation>«&#xa0;%1&#xa0;» dans «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 fichiers</translation>
    </message>
    <message>
        <source>Creating a desktop link</source>
        <translation>Création d’un raccourci de bureau</translation>
    </message>
    <message>
        <source>Creating a symbolic link</source>
        <translation>Création d’un lien symbolique</translation>
    </message>
    <message>
        <source>Creating a hard link</source>
        <translation>Création d’un lien physique</translation>
    </message>
    <message>
        <source>Note: hard links are only supported on the same volume.</source>
        <translation>Remarque&#x202f;: les liens physiques ne sont possibles que sur un même volume.</translation>
    </message>
    <message>
        <source>Creating a clone</source>
        <translation>Création d’un clone</translation>
    </message>
    <message>
        <source>Note: clones can only be made on the same volume, on a file system that shares storage between files (Btrfs, XFS, bcachefs).</source>
        <translation>Remarque&#x202f;: les clones ne sont possibles que sur un même volume, sur un système de fichiers qui partage le stockage entre fichiers (Btrfs, XFS, bcachefs).</translation>
    </message>
    <message>
        <source>%1 of %2 failed</source>
        <translation>%1 sur %2 en échec</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>“%1” could not be moved to the Trash.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être mis à la corbeille.</translation>
    </message>
    <message>
        <source>Delete Immediately…</source>
        <translation>Supprimer immédiatement…</translation>
    </message>
    <message>
        <source>“%1” could not be deleted immediately.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être supprimé immédiatement.</translation>
    </message>
    <message>
        <source>Delete Immediately</source>
        <translation>Supprimer immédiatement</translation>
    </message>
    <message>
        <source>Are you sure you want to delete “%1” immediately?</source>
        <translation>Voulez-vous vraiment supprimer immédiatement «&#xa0;%1&#xa0;»&#x202f;?</translation>
    </message>
    <message>
        <source>This item will be deleted immediately. You can’t undo this action.</source>
        <translation>Cet élément sera supprimé immédiatement. Cette action est irréversible.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the %1 selected items immediately?</source>
        <translation>Voulez-vous vraiment supprimer immédiatement les %1 éléments sélectionnés&#x202f;?</translation>
    </message>
    <message>
        <source>%1 items will be deleted immediately. You can’t undo this action.</source>
        <translation>%1 éléments seront supprimés immédiatement. Cette action est irréversible.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be moved to the Trash.</source>
        <translation>
            <numerusform>%Ln fichier n’a pas pu être mis à la corbeille.</numerusform>
            <numerusform>%Ln fichiers n’ont pas pu être mis à la corbeille.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be deleted immediately.</source>
        <translation>
            <numerusform>%Ln fichier n’a pas pu être supprimé immédiatement.</numerusform>
            <numerusform>%Ln fichiers n’ont pas pu être supprimés immédiatement.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Dupes</name>
    <message>
        <source>Small</source>
        <translation>Petite</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>Extra Large</source>
        <translation>Très grande</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Doublons</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>%1 bps</source>
        <translation>%1 bit/s</translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 Mbps</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message>
        <source>selected</source>
        <translation>sélectionné</translation>
    </message>
    <message>
        <source>hard link</source>
        <translation>lien physique</translation>
    </message>
    <message>
        <source>clone</source>
        <translation>clone</translation>
    </message>
    <message>
        <source>other volume</source>
        <translation>autre volume</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>doublon</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>contained</source>
        <translation>inclus</translation>
    </message>
    <message>
        <source>container</source>
        <translation>englobant</translation>
    </message>
    <message>
        <source>holds its files</source>
        <translation>contient ses fichiers</translation>
    </message>
    <message>
        <source>contained in it</source>
        <translation>y est inclus</translation>
    </message>
</context>
<context>
    <name>DuplicateSearch</name>
    <message>
        <source>Looking for files of the same size… %1</source>
        <translation>Recherche des fichiers de même taille… %1</translation>
    </message>
    <message>
        <source>Step %1 of %2: </source>
        <translation>Étape %1 sur %2&#x202f;: </translation>
    </message>
    <message>
        <source>Enumerating files… %1</source>
        <translation>Énumération des fichiers… %1</translation>
    </message>
    <message>
        <source>Sorting files…</source>
        <translation>Tri des fichiers…</translation>
    </message>
    <message>
        <source>Hashing folders…</source>
        <translation>Calcul des empreintes des dossiers…</translation>
    </message>
    <message>
        <source>Comparing file hashes…</source>
        <translation>Comparaison des empreintes des fichiers…</translation>
    </message>
    <message>
        <source>Filtering out contents of duplicate folders…</source>
        <translation>Exclusion du contenu des dossiers en double…</translation>
    </message>
    <message>
        <source>Comparing files… %1</source>
        <translation>Comparaison des fichiers… %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 of %2, %3</source>
        <translation>%1 sur %2, %3</translation>
    </message>
    <message>
        <source>Finding folders contained in others…</source>
        <translation>Recherche des dossiers contenus dans d’autres…</translation>
    </message>
</context>
<context>
    <name>InterruptedActions</name>
    <message>
        <source>Files cannot be changed safely</source>
        <translation>Les fichiers ne peuvent pas être modifiés sans risque</translation>
    </message>
    <message>
        <source>The operations journal %1 cannot be opened: %2</source>
        <translation>Le journal des opérations %1 ne peut pas être ouvert&#x202f;: %2</translation>
    </message>
    <message>
        <source>Put back as they were:
%1</source>
        <translation>Remis dans leur état d’origine&#x202f;:
%1</translation>
    </message>
    <message>
        <source>Finished:
%1</source>
        <translation>Terminés&#x202f;:
%1</translation>
    </message>
    <message>
        <source>Could not be recovered:
%1</source>
        <translation>N’ont pas pu être rétablis&#x202f;:
%1</translation>
    </message>
    <message>
        <source>Interrupted file actions were recovered</source>
        <translation>Des opérations sur les fichiers interrompues ont été rétablies</translation>
    </message>
    <message>
        <source>Selfsame was stopped while it changed files. Nothing was lost.</source>
        <translation>Selfsame a été arrêté pendant qu’il modifiait des fichiers. Rien n’a été perdu.</translation>
    </message>
    <message>
        <source>Selfsame was stopped while it changed files.</source>
        <translation>Selfsame a été arrêté pendant qu’il modifiait des fichiers.</translation>
    </message>
</context>
<context>
    <name>ItemSafety</name>
    <message>
        <source>“%1” is gone: %2</source>
        <translation>«&#xa0;%1&#xa0;» a disparu&#x202f;: %2</translation>
    </message>
    <message>
        <source>“%1” is no longer the file the search found: another file stands at its path</source>
        <translation>«&#xa0;%1&#xa0;» n’est plus le fichier trouvé par la recherche&#x202f;: un autre fichier se trouve à son chemin</translation>
    </message>
    <message>
        <source>“%1” is no longer a folder</source>
        <translation>«&#xa0;%1&#xa0;» n’est plus un dossier</translation>
    </message>
    <message>
        <source>“%1” is now a folder</source>
        <translation>«&#xa0;%1&#xa0;» est maintenant un dossier</translation>
    </message>
    <message>
        <source>“%1” changed since the search: its size is no longer %2 bytes</source>
        <translation>«&#xa0;%1&#xa0;» a changé depuis la recherche&#x202f;: sa taille n’est plus de %2 octets</translation>
    </message>
    <message>
        <source>“%1” was modified since the search</source>
        <translation>«&#xa0;%1&#xa0;» a été modifié depuis la recherche</translation>
    </message>
    <message>
        <source>“%1” changed since the search (its change time moved, though its content may look the same)</source>
        <translation>«&#xa0;%1&#xa0;» a changé depuis la recherche (sa date de changement a bougé, même si son contenu semble identique)</translation>
    </message>
    <message>
        <source>its kept copy “%1” is no longer there</source>
        <translation>sa copie conservée «&#xa0;%1&#xa0;» n’est plus là</translation>
    </message>
    <message>
        <source>its kept copy is not as the search found it: %1</source>
        <translation>sa copie conservée n’est plus telle que la recherche l’a trouvée&#x202f;: %1</translation>
    </message>
    <message>
        <source>“%1” or its kept copy “%2” could not be looked at: %3</source>
        <translation>«&#xa0;%1&#xa0;» ou sa copie conservée «&#xa0;%2&#xa0;» n’a pas pu être examiné&#x202f;: %3</translation>
    </message>
    <message>
        <source>“%1” and its kept copy “%2” are one file reached through two paths</source>
        <translation>«&#xa0;%1&#xa0;» et sa copie conservée «&#xa0;%2&#xa0;» sont un seul fichier atteint par deux chemins</translation>
    </message>
    <message>
        <source>its kept copy “%1” is a link to “%2” itself</source>
        <translation>sa copie conservée «&#xa0;%1&#xa0;» est un lien vers «&#xa0;%2&#xa0;» lui-même</translation>
    </message>
    <message>
        <source>“%1” no longer has the content of its kept copy “%2”</source>
        <translation>«&#xa0;%1&#xa0;» n’a plus le contenu de sa copie conservée «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>“%1” holds copies of files of “%2” under other names: it can be moved to the trash or deleted, not replaced by a link or clone</source>
        <translation>«&#xa0;%1&#xa0;» contient des copies de fichiers de «&#xa0;%2&#xa0;» sous d’autres noms&#x202f;: il peut être mis à la corbeille ou supprimé, mais pas remplacé par un lien ou un clone</translation>
    </message>
</context>
<context>
    <name>MDImporterAdditions</name>
    <message>
        <source>Downloaded date</source>
        <translation>Date de téléchargement</translation>
    </message>
    <message>
        <source>Date when the item was downloaded</source>
        <translation>Date à laquelle l’élément a été téléchargé</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Date de début</translation>
    </message>
    <message>
        <source>Start date of the item</source>
        <translation>Date de début de l’élément</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>Date de fin</translation>
    </message>
    <message>
        <source>End date of the item</source>
        <translation>Date de fin de l’élément</translation>
    </message>
    <message>
        <source>Text content length</source>
        <translation>Longueur du texte</translation>
    </message>
    <message>
        <source>Length of text content of this item</source>
        <translation>Longueur du contenu textuel de cet élément</translation>
    </message>
</context>
<context>
    <name>MediaDecoding</name>
    <message>
        <source>Pictures cannot be decoded: the media module is missing.</source>
        <translation>Les images ne peuvent pas être décodées&#x202f;: le module multimédia est absent.</translation>
    </message>
    <message>
        <source>Recordings cannot be decoded: the media module is missing.</source>
        <translation>Les enregistrements ne peuvent pas être décodés&#x202f;: le module multimédia est absent.</translation>
    </message>
</context>
<context>
    <name>NamePatterns</name>
    <message>
        <source>Invalid regular expression:
%1</source>
        <translation>Expression régulière non valide&#x202f;:
%1</translation>
    </message>
</context>
<context>
    <name>PictureDecoder</name>
    <message>
        <source>The picture is too large to decode (%1 × %2 pixels).</source>
        <translation>L’image est trop grande pour être décodée (%1 × %2 pixels).</translation>
    </message>
    <message>
        <source>Decoding the picture took too long.</source>
        <translation>Le décodage de l’image a pris trop de temps.</translation>
    </message>
    <message>
        <source>The picture cannot be decoded: %1</source>
        <translation>L’image ne peut pas être décodée&#x202f;: %1</translation>
    </message>
    <message>
        <source>The picture cannot be decoded.</source>
        <translation>L’image ne peut pas être décodée.</translation>
    </message>
    <message>
        <source>The camera raw file holds no preview that can be read.</source>
        <translation>Le fichier RAW ne contient aucun aperçu lisible.</translation>
    </message>
    <message>
        <source>Out of memory.</source>
        <translation>Mémoire insuffisante.</translation>
    </message>
    <message>
        <source>The file is not a picture that can be read.</source>
        <translation>Le fichier n’est pas une image lisible.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Le fichier ne peut pas être lu.</translation>
    </message>
</context>
<context>
    <name>PutBack</name>
    <message>
        <source>“%1” is not in the Trash.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas dans la corbeille.</translation>
    </message>
    <message>
        <source>The operations journal could not record the step: %1</source>
        <translation>Le journal des opérations n’a pas pu enregistrer l’étape&#x202f;: %1</translation>
    </message>
    <message>
        <source>“%1” could not be put back from the Trash.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être restauré depuis la corbeille.</translation>
    </message>
    <message>
        <source>%1 could not be put back from the Trash.</source>
        <translation>%1 n’ont pas pu être restaurés depuis la corbeille.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Put Back All</source>
        <translation>Tout restaurer</translation>
    </message>
    <message>
        <source>Do you want to put back “%1” to its original location “%2”?</source>
        <translation>Voulez-vous restaurer «&#xa0;%1&#xa0;» à son emplacement d’origine «&#xa0;%2&#xa0;»&#x202f;?</translation>
    </message>
    <message>
        <source>Grant Access to “%1”…</source>
        <translation>Autoriser l’accès à «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>Error: “%1” could not be put back to “%2”</source>
        <translation>Erreur&#x202f;: «&#xa0;%1&#xa0;» n’a pas pu être restauré vers «&#xa0;%2&#xa0;»</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne plus afficher ce message</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>its original is neither at its path nor where it went</source>
        <translation>son original n’est ni à son chemin ni là où il a été déplacé</translation>
    </message>
    <message>
        <source>the replacement at its path could not be removed</source>
        <translation>le remplacement à son chemin n’a pas pu être supprimé</translation>
    </message>
</context>
<context>
    <name>Replacement</name>
    <message>
        <source> and Do Not Replace</source>
        <translation> sans remplacer</translation>
    </message>
    <message>
        <source> and Replace with Alias</source>
        <translation> et remplacer par un alias</translation>
    </message>
    <message>
        <source> and Replace with Symbolic Link</source>
        <translation> et remplacer par un lien symbolique</translation>
    </message>
    <message>
        <source> and Replace with Relative Symbolic Link</source>
        <translation> et remplacer par un lien symbolique relatif</translation>
    </message>
    <message>
        <source> and Replace with Hard Link</source>
        <translation> et remplacer par un lien physique</translation>
    </message>
    <message>
        <source> and Replace with Clone</source>
        <translation> et remplacer par un clone</translation>
    </message>
</context>
<context>
    <name>ResultActions</name>
    <message>
        <source>Select Automatically in Folder</source>
        <translation>Sélectionner automatiquement dans le dossier</translation>
    </message>
</context>
<context>
    <name>ResultsFile</name>
    <message>
        <source>the value of “%1” is not valid</source>
        <translation>la valeur de «&#xa0;%1&#xa0;» n’est pas valide</translation>
    </message>
    <message>
        <source>the value of “%1” is negative</source>
        <translation>la valeur de «&#xa0;%1&#xa0;» est négative</translation>
    </message>
    <message>
        <source>the value of “%1” is out of range</source>
        <translation>la valeur de «&#xa0;%1&#xa0;» est hors limites</translation>
    </message>
    <message>
        <source>the value of “%1” is not an absolute path</source>
        <translation>la valeur de «&#xa0;%1&#xa0;» n’est pas un chemin absolu</translation>
    </message>
    <message>
        <source>the value of “%1” contains a NUL character</source>
        <translation>la valeur de «&#xa0;%1&#xa0;» contient un caractère NUL</translation>
    </message>
    <message>
        <source>“%1” is not a Selfsame results file.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un fichier de résultats de Selfsame.</translation>
    </message>
    <message>
        <source>“%1” is incomplete: it ends before its end. It may have been cut short while it was saved or copied.</source>
        <translation>«&#xa0;%1&#xa0;» est incomplet&#x202f;: il s’arrête avant sa fin. Il a peut-être été tronqué lors de son enregistrement ou de sa copie.</translation>
    </message>
    <message>
        <source>“%1” is damaged: %2.</source>
        <translation>«&#xa0;%1&#xa0;» est endommagé&#x202f;: %2.</translation>
    </message>
    <message>
        <source>“%1” was saved by a newer version of Selfsame (results format %2); this version reads format %3 and older.</source>
        <translation>«&#xa0;%1&#xa0;» a été enregistré par une version plus récente de Selfsame (format de résultats %2)&#x202f;; cette version lit le format %3 et les précédents.</translation>
    </message>
    <message>
        <source>it is not valid JSON</source>
        <translation>ce n’est pas du JSON valide</translation>
    </message>
    <message>
        <source>it holds a number out of range</source>
        <translation>il contient un nombre hors limites</translation>
    </message>
    <message>
        <source>it holds a number that is not valid</source>
        <translation>il contient un nombre non valide</translation>
    </message>
    <message>
        <source>the value of “%1” is not a valid number</source>
        <translation>la valeur de «&#xa0;%1&#xa0;» n’est pas un nombre valide</translation>
    </message>
    <message>
        <source>The results could not be saved to “%1”: %2</source>
        <translation>Les résultats n’ont pas pu être enregistrés dans «&#xa0;%1&#xa0;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>“%1” could not be opened: %2</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être ouvert&#x202f;: %2</translation>
    </message>
    <message>
        <source>it has no valid format version</source>
        <translation>il n’a pas de version de format valide</translation>
    </message>
    <message>
        <source>it holds no search request</source>
        <translation>il ne contient aucune requête de recherche</translation>
    </message>
    <message>
        <source>it holds no list of groups</source>
        <translation>il ne contient aucune liste de groupes</translation>
    </message>
    <message>
        <source>a group has no number, count or items</source>
        <translation>un groupe n’a ni numéro, ni nombre, ni éléments</translation>
    </message>
    <message>
        <source>two groups share the number %1</source>
        <translation>deux groupes ont le même numéro %1</translation>
    </message>
    <message>
        <source>an item is neither in the top list nor hidden</source>
        <translation>un élément n’est ni dans la liste du haut ni masqué</translation>
    </message>
    <message>
        <source>the top list has gaps</source>
        <translation>la liste du haut a des trous</translation>
    </message>
    <message>
        <source>two items share one row</source>
        <translation>deux éléments occupent la même ligne</translation>
    </message>
    <message>
        <source>the value of “%1” is not 128 hexadecimal digits</source>
        <translation>la valeur de «&#xa0;%1&#xa0;» n’est pas faite de 128 chiffres hexadécimaux</translation>
    </message>
    <message>
        <source>the value of “%1” is not 32 hexadecimal digits</source>
        <translation>la valeur de «&#xa0;%1&#xa0;» n’est pas faite de 32 chiffres hexadécimaux</translation>
    </message>
    <message>
        <source>the value of “%1” is not a known status</source>
        <translation>la valeur de «&#xa0;%1&#xa0;» n’est pas un état connu</translation>
    </message>
    <message>
        <source>the value of “%1” is not base64</source>
        <translation>la valeur de «&#xa0;%1&#xa0;» n’est pas du Base64</translation>
    </message>
    <message>
        <source>an item has no path</source>
        <translation>un élément n’a pas de chemin</translation>
    </message>
    <message>
        <source>the search parameter “%1” holds a path that is not absolute</source>
        <translation>le paramètre de recherche «&#xa0;%1&#xa0;» contient un chemin qui n’est pas absolu</translation>
    </message>
    <message>
        <source>the search parameter “%1” holds a path with a NUL character</source>
        <translation>le paramètre de recherche «&#xa0;%1&#xa0;» contient un chemin avec un caractère NUL</translation>
    </message>
    <message>
        <source>the search parameter “%1” holds an expression that is not valid</source>
        <translation>le paramètre de recherche «&#xa0;%1&#xa0;» contient une expression non valide</translation>
    </message>
    <message>
        <source>the search parameter “%1” is missing or not valid</source>
        <translation>le paramètre de recherche «&#xa0;%1&#xa0;» est absent ou non valide</translation>
    </message>
</context>
<context>
    <name>ResultsFileDialogs</name>
    <message>
        <source>Open Results</source>
        <translation>Ouvrir des résultats</translation>
    </message>
    <message>
        <source>Selfsame Results (*.%1 *.json);;All Files (*)</source>
        <translation>Résultats Selfsame (*.%1 *.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save Results</source>
        <translation>Enregistrer les résultats</translation>
    </message>
    <message>
        <source>Selfsame Results (*.%1)</source>
        <translation>Résultats Selfsame (*.%1)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)</source>
        <translation>Fichiers CSV (*.csv)</translation>
    </message>
</context>
<context>
    <name>ResultsStatus</name>
    <message numerus="yes">
        <source>%Ln group(s)</source>
        <translation>
            <numerusform>%Ln groupe</numerusform>
            <numerusform>%Ln groupes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln fichier</numerusform>
            <numerusform>%Ln fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 reclaimable</source>
        <translation>%1 récupérables</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden</source>
        <translation>
            <numerusform>%Ln masqué</numerusform>
            <numerusform>%Ln masqués</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln unreadable</source>
        <translation>
            <numerusform>%Ln illisible</numerusform>
            <numerusform>%Ln illisibles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln missing</source>
        <translation>
            <numerusform>%Ln manquant</numerusform>
            <numerusform>%Ln manquants</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln duplicate(s) selected (%1 on disk)</source>
        <translation>
            <numerusform>%Ln doublon sélectionné (%1 sur le disque)</numerusform>
            <numerusform>%Ln doublons sélectionnés (%1 sur le disque)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected (%1 on disk)</source>
        <translation>
            <numerusform>%Ln sélectionné (%1 sur le disque)</numerusform>
            <numerusform>%Ln sélectionnés (%1 sur le disque)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Group of %Ln file(s) · %1 on disk · %2 reclaimable</source>
        <translation>
            <numerusform>Groupe de %Ln fichier · %1 sur le disque · %2 récupérables</numerusform>
            <numerusform>Groupe de %Ln fichiers · %1 sur le disque · %2 récupérables</numerusform>
        </translation>
    </message>
    <message>
        <source>Partial results: the search was stopped. %1</source>
        <translation>Résultats partiels&#x202f;: la recherche a été arrêtée. %1</translation>
    </message>
    <message>
        <source>“%1” has copies of all its files in “%2” · %3 reclaimable</source>
        <translation>«&#xa0;%1&#xa0;» a des copies de tous ses fichiers dans «&#xa0;%2&#xa0;» · %3 récupérables</translation>
    </message>
</context>
<context>
    <name>SearchPanelController</name>
    <message>
        <source>macOS generated aesthetic score</source>
        <translation>score esthétique calculé par macOS</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>Booléen</translation>
    </message>
</context>
<context>
    <name>SelfsameCli</name>
    <message>
        <source>
Without --print0 every path is shown on one line, escaped much as ls -b does: \\ for a
backslash; \n, \t, \r, \a, \b, \f, \v for those control characters; \xHH for the
bytes of any other control character and for each byte that is not UTF-8 (\xFF); spaces
stay as they are. Messages and file-action lines show paths the same way.

Exit status: 0 duplicates found, 1 none found, 2 bad usage or input, 130 interrupted.
</source>
        <translation>
Sans --print0, chaque chemin est affiché sur une ligne, échappé à peu près comme le fait
ls -b&#x202f;: \\ pour une barre oblique inverse&#x202f;; \n, \t, \r, \a, \b, \f, \v pour ces
caractères de contrôle&#x202f;; \xHH pour les octets de tout autre caractère de contrôle et pour
chaque octet qui n’est pas de l’UTF-8 (\xFF)&#x202f;; les espaces restent tels quels. Les messages
et les lignes des opérations sur les fichiers montrent les chemins de la même façon.

Code de sortie&#x202f;: 0 doublons trouvés, 1 aucun trouvé, 2 utilisation ou entrée incorrecte,
130 interrompu.
</translation>
    </message>
    <message>
        <source>option %1 takes no value</source>
        <translation>l’option %1 ne prend pas de valeur</translation>
    </message>
    <message>
        <source>option %1 needs a value</source>
        <translation>l’option %1 demande une valeur</translation>
    </message>
    <message>
        <source>invalid size for --min-size: &apos;%1&apos;</source>
        <translation>taille non valide pour --min-size&#x202f;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>invalid size for --max-size: &apos;%1&apos;</source>
        <translation>taille non valide pour --max-size&#x202f;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>give only one of --ext and --exclude-ext</source>
        <translation>indiquez une seule option parmi --ext et --exclude-ext</translation>
    </message>
    <message>
        <source>%1 needs at least one extension</source>
        <translation>%1 demande au moins une extension</translation>
    </message>
    <message>
        <source>--depth needs a whole number of at least 1, not &apos;%1&apos;</source>
        <translation>--depth demande un nombre entier d’au moins 1, pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>--format takes text, json or csv, not &apos;%1&apos;</source>
        <translation>--format accepte text, json ou csv, pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>--tolerance needs a number of at least 0, not &apos;%1&apos;</source>
        <translation>--tolerance demande un nombre d’au moins 0, pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>--attribute needs a key such as kMDItemTitle</source>
        <translation>--attribute demande une clé comme kMDItemTitle</translation>
    </message>
    <message>
        <source>give only one --select</source>
        <translation>indiquez un seul --select</translation>
    </message>
    <message>
        <source>--select folder needs a folder</source>
        <translation>--select folder demande un dossier</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>option inconnue %1</translation>
    </message>
    <message>
        <source>--print0 goes with the text format only</source>
        <translation>--print0 ne va qu’avec le format texte</translation>
    </message>
    <message>
        <source>--tolerance applies to the duration and attribute modes only</source>
        <translation>--tolerance ne s’applique qu’aux modes durée et attribut</translation>
    </message>
    <message>
        <source>--attribute applies to the attribute mode only</source>
        <translation>--attribute ne s’applique qu’au mode attribut</translation>
    </message>
    <message>
        <source>--ignore-extension, --ignore-suffixes and --suffixes apply to the name mode only</source>
        <translation>--ignore-extension, --ignore-suffixes et --suffixes ne s’appliquent qu’au mode nom</translation>
    </message>
    <message>
        <source>%1 needs --select</source>
        <translation>%1 demande --select</translation>
    </message>
    <message>
        <source>no folder or file to search</source>
        <translation>aucun dossier ni fichier à examiner</translation>
    </message>
    <message>
        <source>--anywhere needs a file, not &apos;%1&apos;</source>
        <translation>--anywhere demande un fichier, pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>none of the given paths exists</source>
        <translation>aucun des chemins indiqués n’existe</translation>
    </message>
    <message>
        <source>give only one of --trash and --delete</source>
        <translation>indiquez une seule option parmi --trash et --delete</translation>
    </message>
    <message>
        <source>--replace-with takes symlink, relative-symlink, hardlink, clone or alias, not &apos;%1&apos;</source>
        <translation>--replace-with accepte symlink, relative-symlink, hardlink, clone ou alias, pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>--yes, --dry-run and --plan go with --trash, --delete or --replace-with</source>
        <translation>--yes, --dry-run et --plan vont avec --trash, --delete ou --replace-with</translation>
    </message>
    <message>
        <source>--plan goes with --replace-with clone alone</source>
        <translation>--plan ne va qu’avec --replace-with clone seul</translation>
    </message>
    <message>
        <source>Acting on the copies that --select selects (never on a group&apos;s last copy):
  --trash                    move them to the trash
  --delete                   delete them for good
  --replace-with MODE        symlink, relative-symlink, hardlink, clone or alias to the
                             group&apos;s kept copy; alone, clone shares storage in place and
                             a link mode deletes the copy and puts the link at its path
  --plan FILE                write the cloning plan there (--replace-with clone alone)
  --yes                      act; without it the actions are only shown (--dry-run)
With --print0 standard output lists only the path of each copy acted on (or that would be),
each as its exact bytes ended by a NUL; a clone dry run then shows no plan (see --plan).
Failures and counts go to standard error as usual.
Exit status with an action: 0 all done (or would be), 1 anything failed or was refused.
</source>
        <translation>Actions sur les copies que --select sélectionne (jamais sur la dernière copie d’un groupe)&#x202f;:
  --trash                    les mettre à la corbeille
  --delete                   les supprimer définitivement
  --replace-with MODE        symlink, relative-symlink, hardlink, clone ou alias vers la copie
                             conservée du groupe&#x202f;; seul, clone partage le stockage sur place
                             et un mode lien supprime la copie et met le lien à son chemin
  --plan FICHIER             y écrire le plan de clonage (--replace-with clone seul)
  --yes                      agir&#x202f;; sans cette option, les actions sont seulement montrées
                             (--dry-run)
Avec --print0, la sortie standard ne liste que le chemin de chaque copie traitée (ou qui le
serait), chacun par ses octets exacts terminés par un NUL&#x202f;; un essai de clonage ne montre
alors aucun plan (voir --plan).
Les échecs et les décomptes vont comme d’habitude sur la sortie d’erreur.
Code de sortie avec une action&#x202f;: 0 tout est fait (ou le serait), 1 un échec ou un refus.
</translation>
    </message>
    <message>
        <source>an alias</source>
        <translation>un alias</translation>
    </message>
    <message>
        <source>a symbolic link</source>
        <translation>un lien symbolique</translation>
    </message>
    <message>
        <source>a relative symbolic link</source>
        <translation>un lien symbolique relatif</translation>
    </message>
    <message>
        <source>a hard link</source>
        <translation>un lien physique</translation>
    </message>
    <message>
        <source>a clone</source>
        <translation>un clone</translation>
    </message>
    <message>
        <source>refused: %1: every copy of its group is selected
</source>
        <translation>refusé&#x202f;: %1&#x202f;: toutes les copies de son groupe sont sélectionnées
</translation>
    </message>
    <message>
        <source>recovered: %1: an interrupted action was rolled back, the file is as it was
</source>
        <translation>rétabli&#x202f;: %1&#x202f;: une action interrompue a été annulée, le fichier est comme avant
</translation>
    </message>
    <message>
        <source>recovered: %1: an interrupted action was finished
</source>
        <translation>rétabli&#x202f;: %1&#x202f;: une action interrompue a été terminée
</translation>
    </message>
    <message>
        <source>recovery failed: %1
</source>
        <translation>échec du rétablissement&#x202f;: %1
</translation>
    </message>
    <message>
        <source>, replaced by %1 to %2</source>
        <translation>, remplacé par %1 vers %2</translation>
    </message>
    <message>
        <source>would move to the trash: %1%2
</source>
        <translation>serait mis à la corbeille&#x202f;: %1%2
</translation>
    </message>
    <message>
        <source>would delete: %1%2
</source>
        <translation>serait supprimé&#x202f;: %1%2
</translation>
    </message>
    <message>
        <source>failed: %1: %2
</source>
        <translation>échec&#x202f;: %1&#x202f;: %2
</translation>
    </message>
    <message>
        <source> (now %1)</source>
        <translation> (maintenant %1)</translation>
    </message>
    <message>
        <source>moved to the trash: %1%2%3
</source>
        <translation>mis à la corbeille&#x202f;: %1%2%3
</translation>
    </message>
    <message>
        <source>deleted: %1%2%3
</source>
        <translation>supprimé&#x202f;: %1%2%3
</translation>
    </message>
    <message>
        <source>warning: %1
</source>
        <translation>attention&#x202f;: %1
</translation>
    </message>
    <message>
        <source>%1 done, %2 failed
</source>
        <translation>%1 effectués, %2 en échec
</translation>
    </message>
    <message>
        <source>%1 would be done, %2 refused (dry run: add --yes to act)
</source>
        <translation>%1 seraient effectués, %2 refusés (essai&#x202f;: ajoutez --yes pour agir)
</translation>
    </message>
    <message>
        <source>deleting cannot be undone: files deleted with nothing in their place are gone for good
</source>
        <translation>la suppression est irréversible&#x202f;: les fichiers supprimés sans rien à leur place sont perdus pour de bon
</translation>
    </message>
    <message>
        <source>`selfsame-cli undo` undoes this action
</source>
        <translation>`selfsame-cli undo` annule cette action
</translation>
    </message>
    <message>
        <source>left alone because they or their kept copy changed since the search, or because they were one file reached through two paths: %1
</source>
        <translation>laissé tel quel parce que lui ou sa copie conservée a changé depuis la recherche, ou parce qu’il s’agissait d’un seul fichier atteint par deux chemins&#x202f;: %1
</translation>
    </message>
    <message>
        <source>plan written to %1
</source>
        <translation>plan écrit dans %1
</translation>
    </message>
    <message>
        <source>%1
</source>
        <translation>%1
</translation>
    </message>
    <message>
        <source>dry run: add --yes to clone
</source>
        <translation>essai&#x202f;: ajoutez --yes pour cloner
</translation>
    </message>
    <message>
        <source>cloned: %1
</source>
        <translation>cloné&#x202f;: %1
</translation>
    </message>
    <message>
        <source>%1 cloned, %2 failed
</source>
        <translation>%1 clonés, %2 en échec
</translation>
    </message>
    <message>
        <source>selfsame-cli: the operations journal %1 cannot be opened: %2
</source>
        <translation>selfsame-cli&#x202f;: le journal des opérations %1 ne peut pas être ouvert&#x202f;: %2
</translation>
    </message>
    <message>
        <source>%1 rolled back, %2 finished, %3 failed
</source>
        <translation>%1 annulés, %2 terminés, %3 en échec
</translation>
    </message>
    <message>
        <source>The operations journal holds no actions.
</source>
        <translation>Le journal des opérations ne contient aucune action.
</translation>
    </message>
    <message>
        <source>selfsame-cli: undo takes at most one action number, as `selfsame-cli journal` lists them
Usage: selfsame-cli undo [ACTION]
</source>
        <translation>selfsame-cli&#x202f;: undo prend au plus un numéro d’action, tel que `selfsame-cli journal` les liste
Utilisation&#x202f;: selfsame-cli undo [ACTION]
</translation>
    </message>
    <message>
        <source>selfsame-cli: there is no action %1 in the journal
</source>
        <translation>selfsame-cli&#x202f;: il n’y a pas d’action %1 dans le journal
</translation>
    </message>
    <message>
        <source>selfsame-cli: there is no action to undo
</source>
        <translation>selfsame-cli&#x202f;: il n’y a aucune action à annuler
</translation>
    </message>
    <message>
        <source>undoing action %1: %2, %3
</source>
        <translation>annulation de l’action %1&#x202f;: %2, %3
</translation>
    </message>
    <message>
        <source>selfsame-cli: %1
</source>
        <translation>selfsame-cli&#x202f;: %1
</translation>
    </message>
    <message>
        <source>undone: %1
</source>
        <translation>annulé&#x202f;: %1
</translation>
    </message>
    <message>
        <source>cannot be undone: %1: it was deleted for good
</source>
        <translation>ne peut pas être annulé&#x202f;: %1&#x202f;: il a été supprimé définitivement
</translation>
    </message>
    <message>
        <source>refused: %1
</source>
        <translation>refusé&#x202f;: %1
</translation>
    </message>
    <message>
        <source>%1 undone, %2 refused, %3 deleted for good
</source>
        <translation>%1 annulés, %2 refusés, %3 supprimés définitivement
</translation>
    </message>
    <message>
        <source>selfsame-cli: --trash, --delete and --replace-with act on the copies that --select selects
</source>
        <translation>selfsame-cli&#x202f;: --trash, --delete et --replace-with agissent sur les copies que --select sélectionne
</translation>
    </message>
    <message>
        <source>selfsame-cli: no file type is known for the extension &apos;%1&apos;
</source>
        <translation>selfsame-cli&#x202f;: aucun type de fichier n’est connu pour l’extension «&#xa0;%1&#xa0;»
</translation>
    </message>
    <message>
        <source>selfsame-cli: put-back needs the files in the trash to put back
Usage: selfsame-cli put-back FILE...
</source>
        <translation>selfsame-cli&#x202f;: put-back demande les fichiers de la corbeille à restaurer
Utilisation&#x202f;: selfsame-cli put-back FICHIER...
</translation>
    </message>
    <message>
        <source>not put back: %1: no record of where it came from
</source>
        <translation>non restauré&#x202f;: %1&#x202f;: aucune trace de son origine
</translation>
    </message>
    <message>
        <source>not put back: %1 -&gt; %2: %3
</source>
        <translation>non restauré&#x202f;: %1 -&gt; %2&#x202f;: %3
</translation>
    </message>
    <message>
        <source>put back: %1 -&gt; %2
</source>
        <translation>restauré&#x202f;: %1 -&gt; %2
</translation>
    </message>
    <message>
        <source>%1 put back, %2 failed
</source>
        <translation>%1 restaurés, %2 en échec
</translation>
    </message>
    <message>
        <source>--select folder needs an existing folder, not &apos;%1&apos;</source>
        <translation>--select folder demande un dossier existant, pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 does not apply to --select %2</source>
        <translation>%1 ne s’applique pas à --select %2</translation>
    </message>
    <message>
        <source>--keep takes oldest or newest, not &apos;%1&apos;</source>
        <translation>--keep accepte oldest ou newest, pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>--date takes created, modified, last-used or added, not &apos;%1&apos;</source>
        <translation>--date accepte created, modified, last-used ou added, pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>--select tag needs a tag name, or --any-tag or --no-tag</source>
        <translation>--select tag demande un nom d’étiquette, ou --any-tag ou --no-tag</translation>
    </message>
    <message>
        <source>--any-tag and --no-tag take no tag name</source>
        <translation>--any-tag et --no-tag ne prennent pas de nom d’étiquette</translation>
    </message>
    <message>
        <source>ACTION</source>
        <translation>ACTION</translation>
    </message>
    <message>
        <source>WHEN</source>
        <translation>QUAND</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>FICHIERS</translation>
    </message>
    <message>
        <source>STATE</source>
        <translation>ÉTAT</translation>
    </message>
    <message>
        <source>WHAT</source>
        <translation>QUOI</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln fichier</numerusform>
            <numerusform>%Ln fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>selfsame-cli: cannot remove the digest cache %1
</source>
        <translation>selfsame-cli&#x202f;: impossible de supprimer le cache des empreintes %1
</translation>
    </message>
    <message>
        <source>cleared the digest cache %1
</source>
        <translation>cache des empreintes %1 vidé
</translation>
    </message>
    <message>
        <source>selfsame-cli: no such file or folder: %1
</source>
        <translation>selfsame-cli&#x202f;: aucun fichier ou dossier de ce nom&#x202f;: %1
</translation>
    </message>
    <message>
        <source>files enumerated: %1</source>
        <translation>fichiers énumérés&#x202f;: %1</translation>
    </message>
    <message>
        <source>files hashed: %1</source>
        <translation>fichiers hachés&#x202f;: %1</translation>
    </message>
    <message>
        <source>files told apart by their first and last bytes: %1</source>
        <translation>fichiers distingués par leurs premiers et derniers octets&#x202f;: %1</translation>
    </message>
    <message>
        <source>bytes read: %1</source>
        <translation>octets lus&#x202f;: %1</translation>
    </message>
    <message>
        <source>files known from the digest cache: %1</source>
        <translation>fichiers connus par le cache des empreintes&#x202f;: %1</translation>
    </message>
    <message>
        <source>unreadable folders: %1</source>
        <translation>dossiers illisibles&#x202f;: %1</translation>
    </message>
    <message>
        <source>unreadable files: %1</source>
        <translation>fichiers illisibles&#x202f;: %1</translation>
    </message>
    <message>
        <source>groups: %1</source>
        <translation>groupes&#x202f;: %1</translation>
    </message>
    <message>
        <source>duplicates: %1</source>
        <translation>doublons&#x202f;: %1</translation>
    </message>
    <message>
        <source>reclaimable bytes: %1</source>
        <translation>octets récupérables&#x202f;: %1</translation>
    </message>
    <message>
        <source>--mode takes content, duration, name, attribute, similar-images or similar-audio, not &apos;%1&apos;</source>
        <translation>--mode accepte content, duration, name, attribute, similar-images ou similar-audio, pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>--similarity needs a whole number from 0 to 100, not &apos;%1&apos;</source>
        <translation>--similarity demande un nombre entier de 0 à 100, pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>--similarity applies to the similar-images and similar-audio modes only</source>
        <translation>--similarity ne s’applique qu’aux modes similar-images et similar-audio</translation>
    </message>
    <message>
        <source>--distinguish-greyscale applies to the similar-images mode only</source>
        <translation>--distinguish-greyscale ne s’applique qu’au mode similar-images</translation>
    </message>
    <message>
        <source>selfsame-cli: cannot decode %1</source>
        <translation>selfsame-cli&#x202f;: impossible de décoder %1</translation>
    </message>
    <message>
        <source>selfsame-cli: interrupted: the output is partial, it holds only the groups found so far
</source>
        <translation>selfsame-cli&#x202f;: interrompu&#x202f;: la sortie est partielle, elle ne contient que les groupes trouvés jusqu’ici
</translation>
    </message>
    <message>
        <source>selfsame-cli: --replace-with needs copies of the same content; the similar modes find files that only look or sound alike
</source>
        <translation>selfsame-cli&#x202f;: --replace-with demande des copies au contenu identique&#x202f;; les modes de similitude trouvent des fichiers qui se ressemblent seulement à l’œil ou à l’oreille
</translation>
    </message>
    <message>
        <source>Usage: selfsame-cli [OPTIONS] PATH...
       selfsame-cli [OPTIONS] --anywhere FILE [PATH...]
       selfsame-cli put-back FILE...   (files in the trash, back to where they came from)
       selfsame-cli clear-cache        (forget the file digests kept between searches)
       selfsame-cli recover            (finish or roll back file actions that were interrupted)
       selfsame-cli journal            (the file actions done, newest first, numbered)
       selfsame-cli undo [ACTION]      (undo the last action, or the one of that number)
Finds files (and with --compare-folders, folders) of equal content, or of equal duration,
name or metadata attribute.

  --include-hidden           search hidden files and folders (default: skipped)
  --min-size SIZE            smallest file searched, default 1 (&quot;10 MB&quot;, &quot;4KiB&quot;, &quot;500&quot;)
  --max-size SIZE            largest file searched, default none
  --no-size-filter           no size limits at all
  --ext LIST                 only these extensions (comma or blank separated)
  --exclude-ext LIST         all files but these extensions
  --skip PATTERN             skip names matching a glob or /regex/ (repeatable)
  --depth N                  levels below each location (1 = its direct children only)
  --compare-folders          also find folders of equal content
  --contained-folders        also find folders whose files all have copies inside one other
                             searched folder, whatever their names and layout
  --ignore-mp4-header        compare MP4 files without their first 16 KiB
  --ignore-clones            leave out groups whose files already share their storage
  --include-read-only        also search items you may not modify or delete
  --include-other-owner      also search items owned by other users
  --mode MODE                content (default), duration, name, attribute, similar-images
                             (pictures that look alike) or similar-audio (the same recording
                             in any format or bit rate)
  --similarity N             similar modes: how alike, 0 to 100 (default 90: very similar)
  --distinguish-greyscale    similar-images: a grey copy is not like its colour original
  --tolerance N              duration and attribute modes: largest difference still equal, in
                             seconds for durations and dates, seconds of arc for latitude and
                             longitude, else the attribute&apos;s unit (default 0.1 s for durations, 0)
  --attribute KEY            attribute mode: the attribute compared (default kMDItemTitle)
  --ignore-extension         name mode: compare names without their extension
  --ignore-suffixes          name mode: ignore copy suffixes (&quot; copy, copy #, #,-#, (#)&quot;)
  --suffixes LIST            name mode: ignore these comma-separated suffixes instead
                             (&quot;#&quot; stands for a number from 1 to 99, &quot;##&quot; for any number)
  --list-attributes [EXT]    list the attributes (key, name, type, description), or those
                             that files with this extension can carry, and exit
  --format text|json|csv     output format (default text: a blank line between groups)
  -0, --print0               text output with each path as its exact bytes ended by a NUL
                             instead of a newline, and one more NUL ending each group
                             (text format only; for actions see below)
  --summary                  counts to standard error
  --anywhere                 the first path is a file: find its copies in the other paths,
                             or without them anywhere on the file&apos;s drive
  --no-cache                 read every compared file: neither use nor update the digest
                             cache (kept in $XDG_CACHE_HOME/selfsame)
  --select RULE [OPTIONS]    show which copies a selection rule picks (see below)
  -h, --help                 show this help
  --version                  show the version

</source>
        <translation>Utilisation&#x202f;: selfsame-cli [OPTIONS] CHEMIN...
       selfsame-cli [OPTIONS] --anywhere FICHIER [CHEMIN...]
       selfsame-cli put-back FICHIER...  (fichiers de la corbeille, remis là d’où ils viennent)
       selfsame-cli clear-cache        (oublier les empreintes gardées entre les recherches)
       selfsame-cli recover            (terminer ou annuler les opérations interrompues)
       selfsame-cli journal            (les opérations effectuées, les plus récentes d’abord)
       selfsame-cli undo [ACTION]      (annuler la dernière action, ou celle de ce numéro)
Trouve les fichiers (et avec --compare-folders, les dossiers) de même contenu, ou de même
durée, nom ou attribut de métadonnées.

  --include-hidden           chercher aussi dans les fichiers et dossiers cachés
                             (par défaut&#x202f;: ignorés)
  --min-size TAILLE          plus petit fichier examiné, 1 par défaut (&quot;10 MB&quot;, &quot;4KiB&quot;, &quot;500&quot;)
  --max-size TAILLE          plus grand fichier examiné, aucun par défaut
  --no-size-filter           aucune limite de taille
  --ext LISTE                seulement ces extensions (séparées par des virgules ou des blancs)
  --exclude-ext LISTE        tous les fichiers sauf ces extensions
  --skip MOTIF               ignorer les noms correspondant à un glob ou à une /regex/
                             (répétable)
  --depth N                  niveaux sous chaque emplacement (1 = ses enfants directs seulement)
  --compare-folders          trouver aussi les dossiers de même contenu
  --contained-folders        trouver aussi les dossiers dont tous les fichiers ont des copies
                             dans un autre dossier examiné, quels que soient noms et rangement
  --ignore-mp4-header        comparer les fichiers MP4 sans leurs 16 premiers Kio
  --ignore-clones            omettre les groupes dont les fichiers partagent déjà leur stockage
  --include-read-only        examiner aussi les éléments que vous ne pouvez ni modifier ni
                             supprimer
  --include-other-owner      examiner aussi les éléments appartenant à d’autres utilisateurs
  --mode MODE                content (par défaut), duration, name, attribute, similar-images
                             (images qui se ressemblent) ou similar-audio (le même
                             enregistrement, quels que soient le format et le débit)
  --similarity N             modes similaires&#x202f;: degré de ressemblance, de 0 à 100
                             (par défaut 90&#x202f;: très semblables)
  --distinguish-greyscale    similar-images&#x202f;: une copie en gris ne ressemble pas à son
                             original en couleur
  --tolerance N              modes durée et attribut&#x202f;: plus grand écart encore considéré égal,
                             en secondes pour les durées et les dates, en secondes d’arc pour
                             la latitude et la longitude, sinon dans l’unité de l’attribut
                             (par défaut 0.1 s pour les durées, 0 sinon)
  --attribute CLÉ            mode attribut&#x202f;: l’attribut comparé (par défaut kMDItemTitle)
  --ignore-extension         mode nom&#x202f;: comparer les noms sans leur extension
  --ignore-suffixes          mode nom&#x202f;: ignorer les suffixes de copie
                             (&quot; copy, copy #, #,-#, (#)&quot;)
  --suffixes LISTE           mode nom&#x202f;: ignorer plutôt ces suffixes séparés par des virgules
                             (&quot;#&quot; représente un nombre de 1 à 99, &quot;##&quot; un nombre quelconque)
  --list-attributes [EXT]    lister les attributs (clé, nom, type, description), ou ceux que
                             peuvent porter les fichiers de cette extension, puis quitter
  --format text|json|csv     format de sortie (text par défaut&#x202f;: une ligne vide entre groupes)
  -0, --print0               sortie texte où chaque chemin est donné par ses octets exacts,
                             terminé par un NUL au lieu d’un saut de ligne, avec un NUL de
                             plus à la fin de chaque groupe (format texte seulement&#x202f;; pour
                             les actions, voir plus bas)
  --summary                  décomptes sur la sortie d’erreur
  --anywhere                 le premier chemin est un fichier&#x202f;: trouver ses copies dans les
                             autres chemins, ou sans eux partout sur le disque du fichier
  --no-cache                 lire chaque fichier comparé&#x202f;: ni utiliser ni mettre à jour le
                             cache des empreintes (gardé dans $XDG_CACHE_HOME/selfsame)
  --select RÈGLE [OPTIONS]   montrer quelles copies une règle de sélection choisit (voir plus
                             bas)
  -h, --help                 afficher cette aide
  --version                  afficher la version

</translation>
    </message>
    <message>
        <source>--contained-folders applies to the content mode only</source>
        <translation>--contained-folders ne s’applique qu’au mode contenu</translation>
    </message>
    <message numerus="yes">
        <source>recovered: removed %Ln temporary folder(s) of interrupted cloning plans
</source>
        <translation>
            <numerusform>rétabli&#x202f;: %Ln dossier temporaire de plan de clonage interrompu supprimé
</numerusform>
            <numerusform>rétabli&#x202f;: %Ln dossiers temporaires de plans de clonage interrompus supprimés
</numerusform>
        </translation>
    </message>
    <message>
        <source>unknown rule for --select: &apos;%1&apos; (same-folder-name, same-folder, folder, tag, largest-picture, highest-bitrate or contained-folders)</source>
        <translation>règle inconnue pour --select&#x202f;: «&#xa0;%1&#xa0;» (same-folder-name, same-folder, folder, tag, largest-picture, highest-bitrate ou contained-folders)</translation>
    </message>
    <message>
        <source>Automatic selection (files are never touched; each path line starts with
&quot;select &quot; or &quot;keep &quot;, or two blanks where the rule decided nothing):
  --select same-folder-name  in each folder, keep &quot;name.ext&quot; and select &quot;name copy.ext&quot;,
                             &quot;name 2.ext&quot;…
  --select same-folder [--keep oldest|newest] [--date created|modified|last-used|added]
                             in each folder keep the oldest (or newest) copy, select the rest
  --select folder DIR [--inside|--inside-any-depth|--outside|--outside-any-depth]
                  [--if-newer|--if-older|--if-same-date [--date …]]
                             select the copies located so relative to DIR (only those
                             newer, older or as old as a copy elsewhere), keep the others
  --select tag NAME [--having|--not-having]   or   --select tag --any-tag|--no-tag
                             select the copies having (or lacking) the tag, keep the others
  --select largest-picture   similar pictures: keep the most pixels, then the largest file
  --select highest-bitrate   same recordings: keep the highest bit rate, then a lossless format
  --select contained-folders with --contained-folders: select each folder whose files all have
                             copies in another, keep that other folder
</source>
        <translation>Sélection automatique (les fichiers ne sont jamais modifiés&#x202f;; chaque ligne de chemin commence
par &quot;select &quot; ou &quot;keep &quot;, ou par deux blancs là où la règle n’a rien décidé)&#x202f;:
  --select same-folder-name  dans chaque dossier, garder &quot;name.ext&quot; et sélectionner
                             &quot;name copy.ext&quot;, &quot;name 2.ext&quot;…
  --select same-folder [--keep oldest|newest] [--date created|modified|last-used|added]
                             dans chaque dossier, garder la copie la plus ancienne (ou la plus
                             récente) et sélectionner les autres
  --select folder DOSSIER [--inside|--inside-any-depth|--outside|--outside-any-depth]
                  [--if-newer|--if-older|--if-same-date [--date …]]
                             sélectionner les copies ainsi placées par rapport à DOSSIER
                             (seulement celles plus récentes, plus anciennes ou de même date
                             qu’une copie ailleurs), garder les autres
  --select tag NOM [--having|--not-having]   ou   --select tag --any-tag|--no-tag
                             sélectionner les copies qui ont (ou n’ont pas) l’étiquette,
                             garder les autres
  --select largest-picture   images similaires&#x202f;: garder le plus de pixels, puis le plus gros
                             fichier
  --select highest-bitrate   mêmes enregistrements&#x202f;: garder le débit le plus élevé, puis un
                             format sans perte
  --select contained-folders avec --contained-folders&#x202f;: sélectionner chaque dossier dont tous
                             les fichiers ont des copies dans un autre, garder cet autre
</translation>
    </message>
</context>
<context>
    <name>SimilarSearch</name>
    <message>
        <source>The picture is empty.</source>
        <translation>L’image est vide.</translation>
    </message>
    <message>
        <source>Looking at pictures… %1 of %2</source>
        <translation>Examen des images… %1 sur %2</translation>
    </message>
    <message>
        <source>Listening to recordings… %1 of %2</source>
        <translation>Écoute des enregistrements… %1 sur %2</translation>
    </message>
    <message>
        <source>Looking closer at similar pictures… %1 of %2</source>
        <translation>Examen détaillé des images semblables… %1 sur %2</translation>
    </message>
</context>
<context>
    <name>TimeLeft</name>
    <message>
        <source>a few seconds left</source>
        <translation>encore quelques secondes</translation>
    </message>
    <message numerus="yes">
        <source>about %Ln second(s) left</source>
        <translation>
            <numerusform>encore environ %Ln seconde</numerusform>
            <numerusform>encore environ %Ln secondes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %Ln minute(s) left</source>
        <translation>
            <numerusform>encore environ %Ln minute</numerusform>
            <numerusform>encore environ %Ln minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %Ln hour(s) left</source>
        <translation>
            <numerusform>encore environ %Ln heure</numerusform>
            <numerusform>encore environ %Ln heures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Trash</name>
    <message>
        <source>No trash folder could be made on the volume of “%1”.</source>
        <translation>Aucun dossier de corbeille n’a pu être créé sur le volume de «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The trash information of “%1” could not be written: %2</source>
        <translation>Les informations de corbeille de «&#xa0;%1&#xa0;» n’ont pas pu être écrites&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>TrashAlerts</name>
    <message>
        <source>Items moved to the Trash by Selfsame can be put back where they were.</source>
        <translation>Les éléments mis à la corbeille par Selfsame peuvent être remis à leur place.</translation>
    </message>
    <message>
        <source>Use Actions › Put Back from Trash while these results are open, or restore them from the Trash in the file manager. A file from the Trash opened with Selfsame (even after a restart) is offered to be put back too.</source>
        <translation>Utilisez Actions › Restaurer depuis la corbeille tant que ces résultats sont ouverts, ou restaurez-les depuis la corbeille dans le gestionnaire de fichiers. Un fichier de la corbeille ouvert avec Selfsame (même après un redémarrage) est lui aussi proposé à la restauration.</translation>
    </message>
    <message>
        <source>Good to Know!</source>
        <translation>Bon à savoir&#x202f;!</translation>
    </message>
    <message>
        <source>“%1” could not be moved to the Trash.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être mis à la corbeille.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be moved to the Trash.</source>
        <translation>
            <numerusform>%Ln fichier n’a pas pu être mis à la corbeille.</numerusform>
            <numerusform>%Ln fichiers n’ont pas pu être mis à la corbeille.</numerusform>
        </translation>
    </message>
    <message>
        <source>The drive “%1” has no trash folder that you may use. You can delete the files immediately instead, which cannot be undone.</source>
        <translation>Le disque «&#xa0;%1&#xa0;» n’a pas de corbeille que vous puissiez utiliser. Vous pouvez plutôt supprimer les fichiers immédiatement, ce qui est irréversible.</translation>
    </message>
    <message>
        <source>You do not have permission to change the folder “%1”, so nothing can be moved out of it. Its owner or an administrator can give you that permission.</source>
        <translation>Vous n’avez pas le droit de modifier le dossier «&#xa0;%1&#xa0;», rien ne peut donc en être retiré. Son propriétaire ou un administrateur peut vous donner ce droit.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete Immediately…</source>
        <translation>Supprimer immédiatement…</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>“%1” could not be put back from the Trash.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être restauré depuis la corbeille.</translation>
    </message>
    <message>
        <source>%1 could not be put back from the Trash.</source>
        <translation>%1 n’ont pas pu être restaurés depuis la corbeille.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message>
        <source>the operations journal could not record the step: %1</source>
        <translation>le journal des opérations n’a pas pu enregistrer l’étape&#x202f;: %1</translation>
    </message>
    <message>
        <source>it is no longer in the trash</source>
        <translation>il n’est plus dans la corbeille</translation>
    </message>
    <message>
        <source>it changed in the trash since</source>
        <translation>il a changé dans la corbeille depuis</translation>
    </message>
    <message>
        <source>another file now stands at its path</source>
        <translation>un autre fichier se trouve maintenant à son chemin</translation>
    </message>
    <message>
        <source>it changed since</source>
        <translation>il a changé depuis</translation>
    </message>
    <message>
        <source>its original is no longer in the trash</source>
        <translation>son original n’est plus dans la corbeille</translation>
    </message>
    <message>
        <source>its kept copy “%1” changed since</source>
        <translation>sa copie conservée «&#xa0;%1&#xa0;» a changé depuis</translation>
    </message>
    <message>
        <source>its metadata was not recorded</source>
        <translation>ses métadonnées n’ont pas été enregistrées</translation>
    </message>
    <message>
        <source>an independent copy could not be made: %1</source>
        <translation>une copie indépendante n’a pas pu être créée&#x202f;: %1</translation>
    </message>
    <message>
        <source>it could not be moved aside: %1</source>
        <translation>il n’a pas pu être mis de côté&#x202f;: %1</translation>
    </message>
    <message>
        <source>the copy could not be put in its place: %1</source>
        <translation>la copie n’a pas pu être mise à sa place&#x202f;: %1</translation>
    </message>
    <message>
        <source>its original could not be moved back: %1</source>
        <translation>son original n’a pas pu être remis en place&#x202f;: %1</translation>
    </message>
    <message>
        <source>Undoing needs %1 free on the drive holding “%2”, which has %3 free. Nothing was changed.</source>
        <translation>L’annulation demande %1 d’espace libre sur le disque contenant «&#xa0;%2&#xa0;», qui n’en a que %3. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>desktop links</source>
        <translation>des raccourcis de bureau</translation>
    </message>
    <message>
        <source>symbolic links</source>
        <translation>des liens symboliques</translation>
    </message>
    <message>
        <source>relative symbolic links</source>
        <translation>des liens symboliques relatifs</translation>
    </message>
    <message>
        <source>hard links</source>
        <translation>des liens physiques</translation>
    </message>
    <message>
        <source>clones</source>
        <translation>des clones</translation>
    </message>
    <message>
        <source>Moved to the trash</source>
        <translation>Mis à la corbeille</translation>
    </message>
    <message>
        <source>Moved to the trash and replaced with %1</source>
        <translation>Mis à la corbeille et remplacés par %1</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Supprimés</translation>
    </message>
    <message>
        <source>Deleted and replaced with %1</source>
        <translation>Supprimés et remplacés par %1</translation>
    </message>
    <message>
        <source>Replaced with clones</source>
        <translation>Remplacés par des clones</translation>
    </message>
    <message>
        <source>Put back from the trash</source>
        <translation>Restaurés depuis la corbeille</translation>
    </message>
    <message>
        <source>Undid action %1</source>
        <translation>Action %1 annulée</translation>
    </message>
    <message>
        <source>cannot be undone</source>
        <translation>ne peut pas être annulée</translation>
    </message>
    <message>
        <source>can be undone</source>
        <translation>peut être annulée</translation>
    </message>
    <message>
        <source>undone</source>
        <translation>annulée</translation>
    </message>
    <message>
        <source>partly undone</source>
        <translation>annulée en partie</translation>
    </message>
    <message>
        <source>“%1” could not be undone</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être annulé</translation>
    </message>
    <message>
        <source>“%1” was undone</source>
        <translation>«&#xa0;%1&#xa0;» a été annulé</translation>
    </message>
    <message>
        <source>“%1” was undone in part</source>
        <translation>«&#xa0;%1&#xa0;» a été annulé en partie</translation>
    </message>
    <message>
        <source>%1: deleted for good</source>
        <translation>%1&#x202f;: supprimé définitivement</translation>
    </message>
    <message>
        <source>There is no action %1 in the journal.</source>
        <translation>Il n’y a pas d’action %1 dans le journal.</translation>
    </message>
    <message>
        <source>Action %1 was undone already.</source>
        <translation>L’action %1 a déjà été annulée.</translation>
    </message>
    <message>
        <source>Action %1 (%2) cannot be undone.</source>
        <translation>L’action %1 (%2) ne peut pas être annulée.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln fichier</numerusform>
            <numerusform>%Ln fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) (was|were) given back.</source>
        <translation>
            <numerusform>%Ln fichier a été rendu.</numerusform>
            <numerusform>%Ln fichiers ont été rendus.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) (was|were) left as (it is|they are), because (it|they) changed since.</source>
        <translation>
            <numerusform>%Ln fichier a été laissé tel quel, car il a changé depuis.</numerusform>
            <numerusform>%Ln fichiers ont été laissés tels quels, car ils ont changé depuis.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) (was|were) deleted for good and cannot be given back.</source>
        <translation>
            <numerusform>%Ln fichier a été supprimé définitivement et ne peut pas être rendu.</numerusform>
            <numerusform>%Ln fichiers ont été supprimés définitivement et ne peuvent pas être rendus.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WindowTitles</name>
    <message>
        <source>by duration</source>
        <translation>par durée</translation>
    </message>
    <message>
        <source>by name</source>
        <translation>par nom</translation>
    </message>
    <message>
        <source>by attribute</source>
        <translation>par attribut</translation>
    </message>
    <message>
        <source>by %1</source>
        <translation>par %1</translation>
    </message>
    <message>
        <source>by content</source>
        <translation>par contenu</translation>
    </message>
    <message numerus="yes">
        <source>%Ln location(s)</source>
        <translation>
            <numerusform>%Ln emplacement</numerusform>
            <numerusform>%Ln emplacements</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 — %2 — %3</source>
        <translation>%1 — %2 — %3</translation>
    </message>
    <message>
        <source>by similar pictures</source>
        <translation>par images similaires</translation>
    </message>
    <message>
        <source>by same recording</source>
        <translation>par même enregistrement</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Finds duplicate files.</source>
        <translation>Trouve les fichiers en double.</translation>
    </message>
    <message>
        <source>Add the paths to the locations and search them at once.</source>
        <translation>Ajouter les chemins aux emplacements et les examiner aussitôt.</translation>
    </message>
    <message>
        <source>Files to look up, or folders to add.</source>
        <translation>Fichiers à rechercher, ou dossiers à ajouter.</translation>
    </message>
</context>
<context>
    <name>selfsame::AddAttributeDialog</name>
    <message>
        <source>Add Attribute</source>
        <translation>Ajouter un attribut</translation>
    </message>
    <message>
        <source>kMDItem…</source>
        <translation>kMDItem…</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>&amp;Clé&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Description&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Type&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Remove All Added Attributes</source>
        <translation>&amp;Retirer tous les attributs ajoutés</translation>
    </message>
</context>
<context>
    <name>selfsame::AppDelegate</name>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>Search the ticked locations for duplicates (Ctrl+Return)</source>
        <translation>Chercher les doublons dans les emplacements cochés (Ctrl+Entrée)</translation>
    </message>
    <message>
        <source>Search &amp;in:</source>
        <translation>Rechercher &amp;dans&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message>
        <source>Add folders or drives to search</source>
        <translation>Ajouter des dossiers ou des disques à examiner</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Re&amp;tirer</translation>
    </message>
    <message>
        <source>Remove the selected locations from the list; nothing is deleted</source>
        <translation>Retirer de la liste les emplacements sélectionnés&#x202f;; rien n’est supprimé</translation>
    </message>
    <message>
        <source>Drop folders or files here to add them.</source>
        <translation>Déposez ici des dossiers ou des fichiers pour les ajouter.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Add Folder…</source>
        <translation>Ajouter un &amp;dossier…</translation>
    </message>
    <message>
        <source>Add &amp;Files…</source>
        <translation>Ajouter des &amp;fichiers…</translation>
    </message>
    <message>
        <source>Choose Files to Find Duplicates Of</source>
        <translation>Choisir les fichiers dont chercher les doublons</translation>
    </message>
    <message>
        <source>&amp;Search for Duplicates</source>
        <translation>&amp;Rechercher les doublons</translation>
    </message>
    <message>
        <source>Open &amp;Results…</source>
        <translation>Ouvrir des ré&amp;sultats…</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>Re&amp;tirer de la liste</translation>
    </message>
    <message>
        <source>Show in File &amp;Manager</source>
        <translation>Afficher dans le gestionnaire de fic&amp;hiers</translation>
    </message>
    <message>
        <source>Clear Digest &amp;Cache</source>
        <translation>Vider le &amp;cache des empreintes</translation>
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
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;Welcome to [NSApp]</source>
        <translation>&amp;Bienvenue dans [NSApp]</translation>
    </message>
    <message>
        <source>Reset &amp;Do Not Show Again</source>
        <translation>Réinitialiser «&#xa0;Ne plus &amp;afficher&#xa0;»</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>Envoyer un &amp;commentaire…</translation>
    </message>
    <message>
        <source>&amp;About [NSApp]</source>
        <translation>À &amp;propos de [NSApp]</translation>
    </message>
    <message>
        <source>About [NSApp]</source>
        <translation>À propos de [NSApp]</translation>
    </message>
    <message>
        <source>&lt;h3&gt;[NSApp] %1&lt;/h3&gt;&lt;p&gt;Finds duplicate files by content, duration, name or metadata, and helps you keep one copy.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Credits&lt;/b&gt;&lt;br&gt;Built with Qt, OpenSSL (SHA-512) and xxHash. Icons follow your desktop&apos;s theme.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;[NSApp] %1&lt;/h3&gt;&lt;p&gt;Trouve les fichiers en double par contenu, durée, nom ou métadonnées, et vous aide à n’en garder qu’un exemplaire.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Remerciements&lt;/b&gt;&lt;br&gt;Réalisé avec Qt, OpenSSL (SHA-512) et xxHash. Les icônes suivent le thème de votre bureau.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>The digest cache could not be cleared.</source>
        <translation>Le cache des empreintes n’a pas pu être vidé.</translation>
    </message>
    <message>
        <source>Check the permissions of %1.</source>
        <translation>Vérifiez les permissions de %1.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Skipping some files or subfolders while comparing folders can lead to false positives</source>
        <translation>Ignorer certains fichiers ou sous-dossiers pendant la comparaison des dossiers peut donner des faux positifs</translation>
    </message>
    <message>
        <source>You may however choose to ignore .app extensions if you don’t want to compare applications (which are actually file packages).</source>
        <translation>Vous pouvez cependant ignorer les extensions .app si vous ne voulez pas comparer d’applications (qui sont en fait des paquets de fichiers).</translation>
    </message>
    <message>
        <source>Got It!</source>
        <translation>Compris&#x202f;!</translation>
    </message>
    <message>
        <source>Please select the folder or drive in which to search for duplicates of individual files.</source>
        <translation>Veuillez sélectionner le dossier ou le disque dans lequel chercher les doublons de fichiers isolés.</translation>
    </message>
    <message>
        <source>Grant Access…</source>
        <translation>Autoriser l’accès…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>Autoriser l’accès</translation>
    </message>
    <message>
        <source>Test Online…</source>
        <translation>Tester en ligne…</translation>
    </message>
    <message>
        <source>Choose Folders to Search</source>
        <translation>Choisir les dossiers à examiner</translation>
    </message>
    <message>
        <source>The results could not be opened.</source>
        <translation>Les résultats n’ont pas pu être ouverts.</translation>
    </message>
    <message>
        <source>No duplicate found for “%1” in the current results</source>
        <translation>Aucun doublon trouvé pour «&#xa0;%1&#xa0;» dans les résultats actuels</translation>
    </message>
    <message>
        <source>Do you want to add this file to the list of locations to search?</source>
        <translation>Voulez-vous ajouter ce fichier à la liste des emplacements à examiner&#x202f;?</translation>
    </message>
    <message>
        <source>Add Serarch Location</source>
        <translation>Ajouter l’emplacement de recherche</translation>
    </message>
    <message>
        <source>Note that you should not enable this location in the list (leave the checkbox unticked): it only tells Selfsame where copies of the files may be, and is not searched itself.

You can designate more such folders by adding them to the folder list and leaving their checkboxes unticked.</source>
        <translation>N’activez pas cet emplacement dans la liste (laissez la case décochée)&#x202f;: il indique seulement à Selfsame où peuvent se trouver des copies des fichiers, et n’est pas parcouru lui-même.

Vous pouvez désigner d’autres dossiers de ce genre en les ajoutant à la liste des dossiers et en laissant leur case décochée.</translation>
    </message>
    <message numerus="yes">
        <source>%1 — %Ln (search|searches) running</source>
        <translation>
            <numerusform>%1 — %Ln recherche en cours</numerusform>
            <numerusform>%1 — %Ln recherches en cours</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>selfsame::AttributeChooser</name>
    <message>
        <source>Metadata Attributes</source>
        <translation>Attributs de métadonnées</translation>
    </message>
    <message>
        <source>Search names and descriptions, or type extensions: jpg mp3</source>
        <translation>Cherchez dans les noms et descriptions, ou tapez des extensions&#x202f;: jpg mp3</translation>
    </message>
    <message>
        <source>Show attribute &amp;keys</source>
        <translation>Afficher les &amp;clés des attributs</translation>
    </message>
    <message>
        <source>&amp;Add Attribute…</source>
        <translation>&amp;Ajouter un attribut…</translation>
    </message>
</context>
<context>
    <name>selfsame::AttributeChooserModel</name>
    <message>
        <source>In Menu</source>
        <translation>Dans le menu</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
</context>
<context>
    <name>selfsame::AutoSelectSheet</name>
    <message>
        <source>Select Automatically</source>
        <translation>Sélectionner automatiquement</translation>
    </message>
    <message>
        <source>Select &amp;Automatically…</source>
        <translation>Sélectionner &amp;automatiquement…</translation>
    </message>
    <message>
        <source>&amp;Unhide</source>
        <translation>Afficher les &amp;masqués</translation>
    </message>
    <message>
        <source>Copies in one folder named like the first with a suffix added (“name copy.ext” beside “name.ext”)</source>
        <translation>Copies d’un même dossier nommées comme la première avec un suffixe («&#xa0;name copy.ext&#xa0;» à côté de «&#xa0;name.ext&#xa0;»)</translation>
    </message>
    <message>
        <source>Copies in one folder whatever their names, keeping</source>
        <translation>Copies d’un même dossier quel que soit leur nom, en gardant</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>the oldest</source>
        <translation>la plus ancienne</translation>
    </message>
    <message>
        <source>the newest</source>
        <translation>la plus récente</translation>
    </message>
    <message>
        <source>directly inside</source>
        <translation>directement dans</translation>
    </message>
    <message>
        <source>anywhere inside</source>
        <translation>n’importe où dans</translation>
    </message>
    <message>
        <source>not directly inside</source>
        <translation>pas directement dans</translation>
    </message>
    <message>
        <source>anywhere outside</source>
        <translation>n’importe où hors de</translation>
    </message>
    <message>
        <source>Drop a folder here</source>
        <translation>Déposez un dossier ici</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>whatever their date</source>
        <translation>quelle que soit leur date</translation>
    </message>
    <message>
        <source>when later than a copy elsewhere by</source>
        <translation>si plus récentes qu’une copie ailleurs, selon la</translation>
    </message>
    <message>
        <source>when earlier than a copy elsewhere by</source>
        <translation>si plus anciennes qu’une copie ailleurs, selon la</translation>
    </message>
    <message>
        <source>when dated as a copy elsewhere by</source>
        <translation>si de même date qu’une copie ailleurs, selon la</translation>
    </message>
    <message>
        <source>having the tag</source>
        <translation>ayant l’étiquette</translation>
    </message>
    <message>
        <source>having any tag</source>
        <translation>ayant une étiquette</translation>
    </message>
    <message>
        <source>not having the tag</source>
        <translation>n’ayant pas l’étiquette</translation>
    </message>
    <message>
        <source>having no tag</source>
        <translation>n’ayant aucune étiquette</translation>
    </message>
    <message>
        <source>Hide the copies that are neither selected nor kept</source>
        <translation>Masquer les copies ni sélectionnées ni gardées</translation>
    </message>
    <message>
        <source>Kept: the copies %1 the folder.|Kept: the copies %1 the folder, and those that the date condition spares.</source>
        <translation>Gardées&#x202f;: les copies %1 le dossier.|Gardées&#x202f;: les copies %1 le dossier, et celles qu’épargne la condition de date.</translation>
    </message>
    <message>
        <source>Kept: the copies %1.</source>
        <translation>Gardées&#x202f;: les copies %1.</translation>
    </message>
    <message>
        <source>In every group of duplicates, select:</source>
        <translation>Dans chaque groupe de doublons, sélectionner&#x202f;:</translation>
    </message>
    <message>
        <source>by</source>
        <translation>selon la</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>le dossier</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>creation date</source>
        <translation>date de création</translation>
    </message>
    <message>
        <source>modification date</source>
        <translation>date de modification</translation>
    </message>
    <message>
        <source>last used date</source>
        <translation>date de dernière utilisation</translation>
    </message>
    <message>
        <source>date added</source>
        <translation>date d’ajout</translation>
    </message>
    <message>
        <source>Choose the Folder</source>
        <translation>Choisir le dossier</translation>
    </message>
    <message>
        <source>All but the largest picture (the most pixels, then the largest file)</source>
        <translation>Toutes sauf la plus grande image (le plus de pixels, puis le plus gros fichier)</translation>
    </message>
    <message>
        <source>All but the best recording (the highest bit rate, then a lossless format)</source>
        <translation>Toutes sauf le meilleur enregistrement (le débit le plus élevé, puis un format sans perte)</translation>
    </message>
    <message>
        <source>Every folder whose files all have copies in another folder, keeping that folder</source>
        <translation>Chaque dossier dont tous les fichiers ont des copies dans un autre dossier, en gardant cet autre</translation>
    </message>
</context>
<context>
    <name>selfsame::Dupes</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Enumerating files…</source>
        <translation>Énumération des fichiers…</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être écrit&#x202f;: %2</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Select one item above to see its group here.</source>
        <translation>Sélectionnez un élément en haut pour voir son groupe ici.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln item(s) could not be read</source>
        <translation>
            <numerusform>%Ln élément n’a pas pu être lu</numerusform>
            <numerusform>%Ln éléments n’ont pas pu être lus</numerusform>
        </translation>
    </message>
    <message>
        <source>These folders could not be listed, so nothing in them was searched:</source>
        <translation>Ces dossiers n’ont pas pu être listés, rien n’y a donc été examiné&#x202f;:</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more (all of them under Show Details)</source>
        <translation>
            <numerusform>et %Ln autre (tous sous «&#xa0;Afficher les détails&#xa0;»)</numerusform>
            <numerusform>et %Ln autres (tous sous «&#xa0;Afficher les détails&#xa0;»)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be read to compare their content.</source>
        <translation>
            <numerusform>%Ln fichier n’a pas pu être lu pour comparer son contenu.</numerusform>
            <numerusform>%Ln fichiers n’ont pas pu être lus pour comparer leur contenu.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Open &amp;Results…</source>
        <translation>Ouvrir des ré&amp;sultats…</translation>
    </message>
    <message>
        <source>&amp;Save Results…</source>
        <translation>&amp;Enregistrer les résultats…</translation>
    </message>
    <message>
        <source>The results could not be saved.</source>
        <translation>Les résultats n’ont pas pu être enregistrés.</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>E&amp;xporter…</translation>
    </message>
    <message>
        <source>The list could not be exported.</source>
        <translation>La liste n’a pas pu être exportée.</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>&amp;Fermer la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Filter…</source>
        <translation>&amp;Filtrer…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Aperçu</translation>
    </message>
    <message>
        <source>&amp;Where Are the Duplicates?</source>
        <translation>&amp;Où sont les doublons&#x202f;?</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Colonnes</translation>
    </message>
    <message>
        <source>List &amp;Size</source>
        <translation>&amp;Taille de la liste</translation>
    </message>
    <message>
        <source>List &amp;Font Size</source>
        <translation>Taille de la &amp;police de la liste</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>A&amp;ctions</translation>
    </message>
    <message>
        <source>&amp;Item</source>
        <translation>Élé&amp;ment</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Show in File &amp;Manager</source>
        <translation>Afficher dans le gestionnaire de fic&amp;hiers</translation>
    </message>
    <message>
        <source>Show Location in Apple &amp;Maps</source>
        <translation>Afficher le lieu dans Apple &amp;Plans</translation>
    </message>
    <message>
        <source>Show Location in &amp;Google Maps</source>
        <translation>Afficher le lieu dans &amp;Google Maps</translation>
    </message>
    <message>
        <source>Show Location in &amp;OpenStreetMap</source>
        <translation>Afficher le lieu dans Open&amp;StreetMap</translation>
    </message>
    <message>
        <source>Stop the search and show the groups found so far</source>
        <translation>Arrêter la recherche et afficher les groupes trouvés jusqu’ici</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>En pause&#x202f;: %1</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Reprendre</translation>
    </message>
</context>
<context>
    <name>selfsame::DupesActions</name>
    <message>
        <source>Move to &amp;Trash%1</source>
        <translation>Mettre à la &amp;corbeille%1</translation>
    </message>
    <message>
        <source>&amp;Delete Immediately%1…</source>
        <translation>&amp;Supprimer immédiatement%1…</translation>
    </message>
    <message>
        <source>&amp;Put Back from Trash</source>
        <translation>&amp;Restaurer depuis la corbeille</translation>
    </message>
    <message>
        <source>Replace by &amp;Clones…</source>
        <translation>Remplacer par des c&amp;lones…</translation>
    </message>
    <message>
        <source>View Cloning Plan</source>
        <translation>Voir le plan de clonage</translation>
    </message>
    <message>
        <source>Do Not Replace</source>
        <translation>Ne pas remplacer</translation>
    </message>
    <message>
        <source>Replace with Alias</source>
        <translation>Remplacer par un alias</translation>
    </message>
    <message>
        <source>Replace with Symbolic Link</source>
        <translation>Remplacer par un lien symbolique</translation>
    </message>
    <message>
        <source>Replace with Relative Symbolic Link</source>
        <translation>Remplacer par un lien symbolique relatif</translation>
    </message>
    <message>
        <source>Replace with Hard Link</source>
        <translation>Remplacer par un lien physique</translation>
    </message>
    <message>
        <source>Replace with Clone</source>
        <translation>Remplacer par un clone</translation>
    </message>
    <message>
        <source>Replacement while Alt is held</source>
        <translation>Remplacement quand Alt est enfoncée</translation>
    </message>
    <message>
        <source>Replacement of deleted duplicates</source>
        <translation>Remplacement des doublons supprimés</translation>
    </message>
    <message numerus="yes">
        <source>Moves the %Ln file(s) selected in the bottom list to the Trash</source>
        <translation>
            <numerusform>Met à la corbeille %Ln fichier sélectionné dans la liste du bas</numerusform>
            <numerusform>Met à la corbeille les %Ln fichiers sélectionnés dans la liste du bas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moves the %Ln file(s) selected in the top list to the Trash</source>
        <translation>
            <numerusform>Met à la corbeille %Ln fichier sélectionné dans la liste du haut</numerusform>
            <numerusform>Met à la corbeille les %Ln fichiers sélectionnés dans la liste du haut</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deletes the %Ln file(s) selected in the bottom list</source>
        <translation>
            <numerusform>Supprime %Ln fichier sélectionné dans la liste du bas</numerusform>
            <numerusform>Supprime les %Ln fichiers sélectionnés dans la liste du bas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deletes the %Ln file(s) selected in the top list</source>
        <translation>
            <numerusform>Supprime %Ln fichier sélectionné dans la liste du haut</numerusform>
            <numerusform>Supprime les %Ln fichiers sélectionnés dans la liste du haut</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone: %n file(s) given back.</source>
        <translation>
            <numerusform>Annulé&#x202f;: %n fichier rendu.</numerusform>
            <numerusform>Annulé&#x202f;: %n fichiers rendus.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>selfsame::DuplicateSearch</name>
    <message>
        <source>No file has been found with the specified spotlight attribute.</source>
        <translation>Aucun fichier n’a été trouvé avec l’attribut Spotlight indiqué.</translation>
    </message>
    <message>
        <source>No time-based file has been found.</source>
        <translation>Aucun fichier temporel n’a été trouvé.</translation>
    </message>
    <message>
        <source>No duplicate files were found.</source>
        <translation>Aucun fichier en double n’a été trouvé.</translation>
    </message>
    <message>
        <source>Make sure the folder you are searching contains some files with this attribute in a format whose metadata can be read.</source>
        <translation>Vérifiez que le dossier parcouru contient des fichiers ayant cet attribut, dans un format dont les métadonnées peuvent être lues.</translation>
    </message>
    <message>
        <source>Make sure the folder you are searching contains some audio or video files.</source>
        <translation>Vérifiez que le dossier parcouru contient des fichiers audio ou vidéo.</translation>
    </message>
    <message>
        <source>No similar pictures were found.</source>
        <translation>Aucune image semblable n’a été trouvée.</translation>
    </message>
    <message>
        <source>Some pictures could not be decoded; they are listed as unreadable.</source>
        <translation>Certaines images n’ont pas pu être décodées&#x202f;; elles sont signalées comme illisibles.</translation>
    </message>
    <message>
        <source>No recordings were found twice.</source>
        <translation>Aucun enregistrement n’a été trouvé en double.</translation>
    </message>
    <message>
        <source>Some recordings could not be decoded; they are listed as unreadable.</source>
        <translation>Certains enregistrements n’ont pas pu être décodés&#x202f;; ils sont signalés comme illisibles.</translation>
    </message>
</context>
<context>
    <name>selfsame::FilterBar</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Codecs</source>
        <translation>Codecs</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>contient</translation>
    </message>
    <message>
        <source>contains the word</source>
        <translation>contient le mot</translation>
    </message>
    <message>
        <source>begins with</source>
        <translation>commence par</translation>
    </message>
    <message>
        <source>ends with</source>
        <translation>se termine par</translation>
    </message>
    <message>
        <source>is</source>
        <translation>est</translation>
    </message>
    <message>
        <source>contains any of</source>
        <translation>contient l’un de</translation>
    </message>
    <message>
        <source>contains any of the words</source>
        <translation>contient l’un des mots</translation>
    </message>
    <message>
        <source>matches</source>
        <translation>correspond à</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>ne contient pas</translation>
    </message>
    <message>
        <source>does not contain the word</source>
        <translation>ne contient pas le mot</translation>
    </message>
    <message>
        <source>does not begin with</source>
        <translation>ne commence pas par</translation>
    </message>
    <message>
        <source>does not end with</source>
        <translation>ne se termine pas par</translation>
    </message>
    <message>
        <source>is not</source>
        <translation>n’est pas</translation>
    </message>
    <message>
        <source>contains none of</source>
        <translation>ne contient aucun de</translation>
    </message>
    <message>
        <source>contains none of the words</source>
        <translation>ne contient aucun des mots</translation>
    </message>
    <message>
        <source>does not match</source>
        <translation>ne correspond pas à</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Invalid regular expression</source>
        <translation>Expression régulière non valide</translation>
    </message>
    <message>
        <source>Try the expression in an online tester</source>
        <translation>Essayer l’expression dans un testeur en ligne</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Créé</translation>
    </message>
    <message>
        <source>Last opened</source>
        <translation>Dernière ouverture</translation>
    </message>
    <message>
        <source>Attributes changed</source>
        <translation>Attributs modifiés</translation>
    </message>
    <message>
        <source>newer than</source>
        <translation>plus récent que</translation>
    </message>
    <message>
        <source>older than</source>
        <translation>plus ancien que</translation>
    </message>
    <message>
        <source>any time</source>
        <translation>n’importe quand</translation>
    </message>
    <message>
        <source>days</source>
        <translation>jours</translation>
    </message>
    <message>
        <source>weeks</source>
        <translation>semaines</translation>
    </message>
    <message>
        <source>months</source>
        <translation>mois</translation>
    </message>
    <message>
        <source>years</source>
        <translation>ans</translation>
    </message>
</context>
<context>
    <name>selfsame::OverviewWindow</name>
    <message>
        <source>Where are the duplicates?</source>
        <translation>Où sont les doublons&#x202f;?</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Tout afficher</translation>
    </message>
    <message numerus="yes">
        <source>%1 could be freed in %Ln folder(s), each tile sized by its share. Click a folder to show only its duplicates in the lists.</source>
        <translation>
            <numerusform>%1 pourraient être libérés dans %Ln dossier, chaque tuile à la mesure de sa part. Cliquez sur un dossier pour n’afficher que ses doublons dans les listes.</numerusform>
            <numerusform>%1 pourraient être libérés dans %Ln dossiers, chaque tuile à la mesure de sa part. Cliquez sur un dossier pour n’afficher que ses doublons dans les listes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>selfsame::PreviewPane</name>
    <message>
        <source>Select one item to see it here.</source>
        <translation>Sélectionnez un élément pour le voir ici.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>On disk</source>
        <translation>Sur le disque</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Créé</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Pixel size</source>
        <translation>Taille en pixels</translation>
    </message>
    <message>
        <source>Codecs</source>
        <translation>Codecs</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Chargement…</translation>
    </message>
    <message>
        <source>No preview</source>
        <translation>Aucun aperçu</translation>
    </message>
</context>
<context>
    <name>selfsame::PutBackDialogue</name>
    <message>
        <source>Please select “%1” to grant the access</source>
        <translation>Veuillez sélectionner «&#xa0;%1&#xa0;» pour autoriser l’accès</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>Autoriser l’accès</translation>
    </message>
</context>
<context>
    <name>selfsame::ResultTableModel</name>
    <message>
        <source>%1
Changed or gone since these results were saved</source>
        <translation>%1
Modifié ou disparu depuis l’enregistrement de ces résultats</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Pixel Size</source>
        <translation>Taille en pixels</translation>
    </message>
    <message>
        <source>Codecs</source>
        <translation>Codecs</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Créé</translation>
    </message>
    <message>
        <source>Last Opened</source>
        <translation>Dernière ouverture</translation>
    </message>
    <message>
        <source>Date Added</source>
        <translation>Date d’ajout</translation>
    </message>
    <message>
        <source>Attributes Changed</source>
        <translation>Attributs modifiés</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Doublons</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Cluster Size</source>
        <translation>Taille de l’agrégat</translation>
    </message>
    <message>
        <source>Items whose values lie within the tolerance of each other, counted around the first item of each cluster.</source>
        <translation>Éléments dont les valeurs sont à moins de la tolérance les unes des autres, comptés autour du premier élément de chaque agrégat.</translation>
    </message>
    <message>
        <source>How each duplicate relates to the selected item: the item itself, a hard link of it, a clone sharing its storage, a copy on another volume, or a proven duplicate.</source>
        <translation>Lien de chaque doublon avec l’élément sélectionné&#x202f;: l’élément lui-même, un lien physique vers lui, un clone partageant son stockage, une copie sur un autre volume, ou un doublon avéré.</translation>
    </message>
    <message>
        <source>Similarity</source>
        <translation>Similarité</translation>
    </message>
    <message>
        <source>How alike each item is to the first item of its group.</source>
        <translation>Degré de ressemblance de chaque élément avec le premier élément de son groupe.</translation>
    </message>
    <message>
        <source>How alike each copy is to the item selected above.</source>
        <translation>Degré de ressemblance de chaque copie avec l’élément sélectionné au-dessus.</translation>
    </message>
</context>
<context>
    <name>selfsame::SearchOptionsPanel</name>
    <message>
        <source>Content</source>
        <translation>Contenu</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom de fichier</translation>
    </message>
    <message>
        <source>Metadata attribute</source>
        <translation>Attribut de métadonnées</translation>
    </message>
    <message>
        <source>Find duplicates &amp;by:</source>
        <translation>Trouver les doublons &amp;par&#x202f;:</translation>
    </message>
    <message>
        <source>Filters:</source>
        <translation>Filtres&#x202f;:</translation>
    </message>
    <message>
        <source>Ignore the header of &amp;MP4 files (compare the media only)</source>
        <translation>Ignorer l’en-tête des fichiers &amp;MP4 (ne comparer que le média)</translation>
    </message>
    <message>
        <source>Also find duplicate f&amp;olders</source>
        <translation>Trouver aussi les d&amp;ossiers en double</translation>
    </message>
    <message>
        <source>Ignore files that already share their storage (&amp;clones)</source>
        <translation>Ignorer les fichiers qui partagent déjà leur stockage (&amp;clones)</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>To&amp;lérance&#x202f;:</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>Ignore &amp;extensions</source>
        <translation>Ignorer les &amp;extensions</translation>
    </message>
    <message>
        <source>Ignore s&amp;uffixes:</source>
        <translation>Ignorer les s&amp;uffixes&#x202f;:</translation>
    </message>
    <message>
        <source>Comma-separated endings left out of names before comparing; # stands for a number from 1 to 99, ## for any number. Blanks count.</source>
        <translation>Terminaisons séparées par des virgules, retirées des noms avant la comparaison&#x202f;; # représente un nombre de 1 à 99, ## un nombre quelconque. Les blancs comptent.</translation>
    </message>
    <message>
        <source>&amp;Attribute:</source>
        <translation>Attri&amp;but&#x202f;:</translation>
    </message>
    <message>
        <source>Skip hidde&amp;n files and folders</source>
        <translation>Ignorer les fichiers et dossiers cac&amp;hés</translation>
    </message>
    <message>
        <source>&amp;Limit folder depth to</source>
        <translation>Limiter la pro&amp;fondeur des dossiers à</translation>
    </message>
    <message>
        <source>levels</source>
        <translation>niveaux</translation>
    </message>
    <message>
        <source>S&amp;kip names matching:</source>
        <translation>Ignorer les &amp;noms correspondant à&#x202f;:</translation>
    </message>
    <message>
        <source>One per line: *.tmp, Thumbs.db, /regex/</source>
        <translation>Un par ligne&#x202f;: *.tmp, Thumbs.db, /regex/</translation>
    </message>
    <message>
        <source>E&amp;xtensions:</source>
        <translation>E&amp;xtensions&#x202f;:</translation>
    </message>
    <message>
        <source>Only</source>
        <translation>Seulement</translation>
    </message>
    <message>
        <source>All but</source>
        <translation>Toutes sauf</translation>
    </message>
    <message>
        <source>jpg heic mov</source>
        <translation>jpg heic mov</translation>
    </message>
    <message>
        <source>File si&amp;ze from</source>
        <translation>Ta&amp;ille des fichiers de</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>sans limite</translation>
    </message>
    <message>
        <source>A number with an optional unit: B, kB, MB, GB, TB or KiB, MiB, GiB, TiB</source>
        <translation>Un nombre avec une unité facultative&#x202f;: o, ko, Mo, Go, To ou Kio, Mio, Gio, Tio (ou B, kB, MB…)</translation>
    </message>
    <message>
        <source>to</source>
        <translation>à</translation>
    </message>
    <message>
        <source>Skip files that I cannot modify or &amp;delete</source>
        <translation>Ignorer les fichiers que je ne peux ni modifier ni &amp;supprimer</translation>
    </message>
    <message>
        <source>Skip files not o&amp;wned by %1</source>
        <translation>I&amp;gnorer les fichiers n’appartenant pas à %1</translation>
    </message>
    <message>
        <source>Find duplicates of single files anywhere on their dri&amp;ve</source>
        <translation>Chercher les doublons de fichiers isolés sur tout leur dis&amp;que</translation>
    </message>
    <message>
        <source>When a location is a single file, its duplicates are searched for across its whole drive.</source>
        <translation>Quand un emplacement est un fichier isolé, ses doublons sont cherchés sur tout son disque.</translation>
    </message>
    <message>
        <source>Other Attributes…</source>
        <translation>Autres attributs…</translation>
    </message>
    <message>
        <source>Similar pictures</source>
        <translation>Images similaires</translation>
    </message>
    <message>
        <source>Same recording</source>
        <translation>Même enregistrement</translation>
    </message>
    <message>
        <source> %</source>
        <translation>&#xa0;%</translation>
    </message>
    <message>
        <source>S&amp;imilarity:</source>
        <translation>Si&amp;milarité&#x202f;:</translation>
    </message>
    <message>
        <source>looser</source>
        <translation>plus souple</translation>
    </message>
    <message>
        <source>stricter</source>
        <translation>plus strict</translation>
    </message>
    <message>
        <source>Tell &amp;greyscale copies from colour ones</source>
        <translation>Distinguer les copies en ni&amp;veaux de gris des copies en couleur</translation>
    </message>
    <message>
        <source>When on, a black-and-white copy of a colour picture is not counted as alike.</source>
        <translation>Si activé, une copie en noir et blanc d’une image en couleur n’est pas comptée comme semblable.</translation>
    </message>
    <message>
        <source>100 % finds only pictures that cannot be told apart; lower values also find copies scaled, recompressed, cropped or retouched more.</source>
        <translation>100&#xa0;% ne trouve que les images impossibles à distinguer&#x202f;; des valeurs plus basses trouvent aussi des copies plus redimensionnées, recompressées, recadrées ou retouchées.</translation>
    </message>
    <message>
        <source>100 % finds only recordings that cannot be told apart; lower values also find copies encoded at lower quality or cut differently.</source>
        <translation>100&#xa0;% ne trouve que les enregistrements impossibles à distinguer&#x202f;; des valeurs plus basses trouvent aussi des copies encodées en moindre qualité ou coupées différemment.</translation>
    </message>
    <message>
        <source>Also find folders whose files all exist elsewhere</source>
        <translation>Trouver aussi les dossiers dont tous les fichiers existent ailleurs</translation>
    </message>
    <message>
        <source>Finds each folder whose files, by content, all have copies inside one other searched folder, whatever their names and layout, such as an old backup inside a newer, reorganised one.</source>
        <translation>Trouve chaque dossier dont tous les fichiers, par leur contenu, ont des copies dans un autre dossier examiné, quels que soient leurs noms et leur rangement, comme une ancienne sauvegarde dans une plus récente, réorganisée.</translation>
    </message>
</context>
<context>
    <name>selfsame::TreemapView</name>
    <message>
        <source>Other folders</source>
        <translation>Autres dossiers</translation>
    </message>
    <message numerus="yes">
        <source>%1
%Ln duplicate(s), %2 reclaimable</source>
        <translation>
            <numerusform>%1
%Ln doublon, %2 récupérables</numerusform>
            <numerusform>%1
%Ln doublons, %2 récupérables</numerusform>
        </translation>
    </message>
    <message>
        <source>No duplicates left to free space from.</source>
        <translation>Plus aucun doublon dont libérer de l’espace.</translation>
    </message>
</context>
<context>
    <name>selfsame::UndoCommands</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Undo &amp;History</source>
        <translation>&amp;Historique des actions</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler %1</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>No file actions yet</source>
        <translation>Aucune opération sur les fichiers pour l’instant</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>selfsame::WelcomePanel</name>
    <message>
        <source>Welcome to [NSApp]</source>
        <translation>Bienvenue dans [NSApp]</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Welcome to [NSApp]&lt;/h3&gt;&lt;p&gt;[NSApp] finds files with the same content in the folders and drives you choose, and helps you decide which copies to keep.&lt;/p&gt;&lt;ol&gt;&lt;li&gt;Add folders to the list: drag them from your file manager, or click &lt;b&gt;Add…&lt;/b&gt;.&lt;/li&gt;&lt;li&gt;Tick the ones to search and choose what makes two files duplicates.&lt;/li&gt;&lt;li&gt;Click &lt;b&gt;Search&lt;/b&gt;. Each search opens its own window; several can run at once.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Searching only reads your files. Nothing is changed until you say so in a results window.&lt;/p&gt;&lt;p&gt;From a file manager, &lt;i&gt;Open With [NSApp]&lt;/i&gt; on a file shows its duplicates, and &lt;i&gt;Find Duplicates Here&lt;/i&gt; on a folder searches it at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Bienvenue dans [NSApp]&lt;/h3&gt;&lt;p&gt;[NSApp] trouve les fichiers de même contenu dans les dossiers et disques que vous choisissez, et vous aide à décider quelles copies garder.&lt;/p&gt;&lt;ol&gt;&lt;li&gt;Ajoutez des dossiers à la liste&#x202f;: faites-les glisser depuis votre gestionnaire de fichiers, ou cliquez sur &lt;b&gt;Ajouter…&lt;/b&gt;.&lt;/li&gt;&lt;li&gt;Cochez ceux à examiner et choisissez ce qui fait de deux fichiers des doublons.&lt;/li&gt;&lt;li&gt;Cliquez sur &lt;b&gt;Rechercher&lt;/b&gt;. Chaque recherche ouvre sa propre fenêtre&#x202f;; plusieurs peuvent tourner en même temps.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;La recherche ne fait que lire vos fichiers. Rien n’est modifié tant que vous ne le demandez pas dans une fenêtre de résultats.&lt;/p&gt;&lt;p&gt;Depuis un gestionnaire de fichiers, &lt;i&gt;Ouvrir avec [NSApp]&lt;/i&gt; sur un fichier montre ses doublons, et &lt;i&gt;Trouver les doublons ici&lt;/i&gt; sur un dossier l’examine aussitôt.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Show this window when [NSApp] starts</source>
        <translation>Afficher cette fenêtre au &amp;démarrage de [NSApp]</translation>
    </message>
</context>
</TS>
