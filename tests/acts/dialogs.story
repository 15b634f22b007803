Opened apartment.dxf
; drawing: samples/apartment.dxf | en
; language: en
; options: --regional en
; Every dialog on desktops of both languages: no caption is empty, and what is French under English is fixed.
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 20 entries
      > 0 *D2
        1 *D3
        2 *D4
        3 *U1
        4 ARBRE
        5 BAIGNOIRE
        6 CANAPE
        7 CARTOUCHE
        ... and 12 more
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: ""
        0 <<< Select
        1 Browse >>>
        2 *D2
        3 *D3
        4 *D4
        5 *U1
        6 _CLOSEDFILLED
        7 ARBRE
        ... and 16 more
    Label1: Insertion parameters ( Tick to change )
    chkRotation: [ ] Rotation
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 1
> lstDestination = PORTE_80
> CboBlocReplacer # 20
> ChkAttSet
> BtnAttSet
[fmAttSet] Vorlane 1.0 : Attribute value transfer settings
  Frame1: Matching table
    ListView1: 3 rows
        # | Attribut dans le bloc source | Attribut dans le bloc de destination
      > 1 | REPERE |
        2 | LARGEUR |
        3 | FEU |
  Combo2: ""
      0 CODE
      1 COUPE_FEU
      2 HUISSERIE
      3 PASSAGE
  Label3: Attribute in the destination block:
  OKButton: [OK]
> OKButton
[fmAttSet] hidden
> BtnClose
[fmReplace] hidden
Command: VNLABEL
[fmLabels] Vorlane 1.0 : Labelling
  Label1: Block to insert:
  Combo2: ""
      0 *D2
      1 *D3
      2 *D4
      3 *U1
      4 _CLOSEDFILLED
      5 ARBRE
      6 BAIGNOIRE
      7 CANAPE
      ... and 14 more
  BtnEtiquette: [Select...]
  BtnImport: [Browse...]
  Frame1: Attribute values
    ListView1: 0 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
    Label3: _
    Text1: ""
    Combo1: "Saisie manuel" (disabled)
      > 0 Saisie manuel
        1 Abscisse X Auto
        2 Ordonnée Y Auto
        3 Cote Z Auto
        4 Longueur Auto Monoclic
        5 Longueur Auto Polyclic
        6 Périmètre Auto Monoclic
        7 Périmètre Auto Polyclic
        ... and 5 more
    BtnAttFormat: [...] (disabled) (tip: Attribute format)
  BtnParametre: [Settings] (disabled)
  BtnInserer: [Insert] (disabled)
  OKButton: [Close]
> Combo2 = PORTE_90
(typed only; "Combo2 : PORTE_90" chooses the entry)
> show
  Label1: Block to insert:
  Combo2: "PORTE_90"
      0 *D2
      1 *D3
      2 *D4
      3 *U1
      4 _CLOSEDFILLED
      5 ARBRE
      6 BAIGNOIRE
      7 CANAPE
      8 CARTOUCHE
      9 CHAISE
      10 ENSEMBLE_REPAS
      11 ETIQUETTE_PIECE
      12 EVIER
      13 FENETRE_120
      14 LAVABO
      15 LIT_140
      16 NORD
      17 PORTE_80
    > 18 PORTE_90
      19 POTEAU
      20 TABLE_160
      21 WC
  BtnEtiquette: [Select...]
  BtnImport: [Browse...]
  Frame1: Attribute values
    ListView1: 4 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
      > 1 | Attribut 1 | CODE | ? | Saisie manuel
        2 | Attribut 2 | PASSAGE | 90 | Saisie manuel
        3 | Attribut 3 | COUPE_FEU | néant | Saisie manuel
        4 | Attribut 4 | HUISSERIE | bois | Saisie manuel
    Label3: Value of Attribut 1 :
    Text1: "?"
    Combo1: "Saisie manuel"
      > 0 Saisie manuel
        1 Abscisse X Auto
        2 Ordonnée Y Auto
        3 Cote Z Auto
        4 Longueur Auto Monoclic
        5 Longueur Auto Polyclic
        6 Périmètre Auto Monoclic
        7 Périmètre Auto Polyclic
        8 Aire Auto Monoclic
        9 Aire Auto Polyclic
        10 Incrément Auto
        11 Nom du Calque
        12 Couleur
    BtnAttFormat: [...] (disabled) (tip: Attribute format)
  BtnParametre: [Settings]
  BtnInserer: [Insert]
  OKButton: [Close]
> Combo1 = Aire Auto Monoclic
(typed only; "Combo1 : Aire Auto Monoclic" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format
  Label1: Attribute 1:
  LabelTag: CODE
  OKButton: [OK]
  Label2: Value mode:
  LabelMode: Aire Auto Monoclic
  CancelButton: [Cancel]
  Frame1: Value
    Label4: Prefix
    Text1: ""
    Label5: Suffix
    Text2: ""
    Label6: Nombre de décimaux
    Combo1: "0"
      > 0 0
        1 0.0
        2 0.00
        3 0.000
        4 0.0000
        5 0.00000
        6 0.000000
        7 0.0000000
        ... and 2 more
> CancelButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
; a counter has other fields
> Combo1 = Incrément Auto
(typed only; "Combo1 : Incrément Auto" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format (again)
> show
  Label1: Attribute 1:
  LabelTag: CODE
  OKButton: [OK]
  Label2: Value mode:
  LabelMode: Incrément Auto
  CancelButton: [Cancel]
  Frame1: Value
    Label4: Prefix
    Text1: ""
    Label5: Suffix
    Text2: ""
    Label6: Valeur initiale
    Text3: ""
    Label7: Increment
    Text4: ""
> CancelButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnParametre
[fmLabels] hidden
[fmParamIns] Vorlane 1.0 : Insertion parameters
  Frame1: Scale
    Label1: X scale
    Text1: "1"
    Label2: Y scale
    Text2: "1"
    Label3: Z scale
    Text3: "1"
  Frame2: Rotation
    CheckBox1: [ ] Specify on screen
    Label4: Rotation angle (°)
    Text4: "0"
  Frame3: Leader line
    CheckBox2: [x] Draw a leader line
    Option1: (o) From a new point
    Option2: ( ) From the picked point
  OKButton: [OK]
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> OKButton
[fmLabels] hidden
Command: VNEXTRACT
[fmExtract] Vorlane 1.0 : Block data extraction
  Label0: Block name:
  Label1:
  Frame2: Extracted data
    ListView2: 0 rows
        #
  BtnNew: [New]
  BtnSave: [Save]
  BtnErase: [Clear]
  BtnClose: [Close]
> BtnNew
[fmExtract] hidden
Select the bloc reference label to list :@242
[fmVnMessage] Vorlane 1.0 : Message
  Label1: You have selected the bloc reference 'ARBRE'
  BtnSelect: [Start again]
  OKButton: [Reference zone]
  CancelButton: [Cancel]
> CancelButton
[fmVnMessage] hidden
[fmExtract] Vorlane 1.0 : Block data extraction (again)
> BtnClose
[fmExtract] hidden
Command: VNINSERT
[fmReInsert] Vorlane 1.0 : Block re-insertion
  Frame1: Attributes of ''
    ListView1: 10 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ |
        2 | Y_ |
        3 | Z_ |
        4 | Ech.X |
        5 | Ech.Y |
        6 | Ech.Z |
        7 | Rotation(rd) |
        8 | DeltaX |
        ... and 2 more
    LblVal: Value
    ComboBox1: ""
  Frame2: Insertion data: ''
    ListView2: 0 rows
        #
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert] (disabled)
  BtnClose: [Close]
  Label1: Block name
  Combo1: ""
      0 *D2
      1 *D3
      2 *D4
      3 *U1
      4 <<< Select
      5 _CLOSEDFILLED
      6 ARBRE
      7 BAIGNOIRE
      ... and 16 more
> BtnClose
[fmReInsert] hidden
Command: VNABOUT
[fmAbout] About Vorlane 1.0
  Label1: Vorlane 1.0
  Label2: Copyright © 2026 Merovane
  BtnWeb: [Website]
  Label3: https://www.merovane.example
  Text1: "Vorlane gère les références de bloc d'un dessin : remplacement, étiquetage, extraction et réinsertion.\nLogiciel libre sous licence MIT, livré sans aucune garantie.\n\nVorlane manages the block references of a drawing: replacement, labelling, extraction and re-insertion.\nFree software under the MIT licence, without any warranty."
  Combo1: "English"
    > 0 English
      1 Français
  Label6: Choisir la langue
  OKButton: [OK]
> OKButton
[fmAbout] hidden
Opened apartment.dxf
; drawing: samples/apartment.dxf | fr
; language: fr
; options: --regional fr
; Every dialog on desktops of both languages: no caption is empty, and what is French under English is fixed.
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Remplacement de blocs
  Frame1: Blocs à remplacer
    Label3: Nom de bloc
    lstDestination: 20 entries
      > 0 *D2
        1 *D3
        2 *D4
        3 *U1
        4 ARBRE
        5 BAIGNOIRE
        6 CANAPE
        7 CARTOUCHE
        ... and 12 more
    BtnSelectName: [Sélectionner]
    Label4: Zone de référence
    optZoneAll: (o) Tout le dessin
    BtnSelectZone: [Sélectionner] (disabled)
    optZoneSelection: ( ) Sélection
  Frame2: Bloc de remplacement
    Label5: Nom du bloc
    CboBlocReplacer: ""
        0 <<< Sélectionner
        1 Parcourir >>>
        2 *D2
        3 *D3
        4 *D4
        5 *U1
        6 _CLOSEDFILLED
        7 ARBRE
        ... and 16 more
    Label1: Paramètres d'insertion ( Cocher pour modifier )
    chkRotation: [ ] Rotation
    txtRotation: "Conserver" (disabled)
    chkVisibility: [ ] Visibilité
    cboVisibility: "Conserver" (disabled)
        0 Visible
        1 Non visible
      > 2 Conserver
    chkXScale: [ ] Echelle en X
    txtXScale: "Conserver" (disabled)
    chkYScale: [ ] Echelle en Y
    txtYScale: "Conserver" (disabled)
    chkZScale: [ ] Echelle en Z
    txtZScale: "Conserver" (disabled)
    ChkAttSet: [ ] Transcription de valeurs d'attributs (disabled)
    BtnAttSet: [Parametrer] (disabled)
  BtnReplace: [Remplacer]
  BtnClose: [Fermer]
  Label2: Nombre de blocs à remplacer :
  LblNbrSelected: 1
> lstDestination = PORTE_80
> CboBlocReplacer # 20
> ChkAttSet
> BtnAttSet
[fmAttSet] Vorlane 1.0 : Paramètres de transcription des valeurs d'attributs
  Frame1: Tableau des correspondances
    ListView1: 3 rows
        # | Attribut dans le bloc source | Attribut dans le bloc de destination
      > 1 | REPERE |
        2 | LARGEUR |
        3 | FEU |
  Combo2: ""
      0 CODE
      1 COUPE_FEU
      2 HUISSERIE
      3 PASSAGE
  Label3: Attribut dans le bloc de destination :
  OKButton: [OK]
> OKButton
[fmAttSet] hidden
> BtnClose
[fmReplace] hidden
Command: VNLABEL
[fmLabels] Vorlane 1.0 : Etiquetage
  Label1: Nom du bloc à insérer :
  Combo2: ""
      0 *D2
      1 *D3
      2 *D4
      3 *U1
      4 _CLOSEDFILLED
      5 ARBRE
      6 BAIGNOIRE
      7 CANAPE
      ... and 14 more
  BtnEtiquette: [Sélectionner...]
  BtnImport: [Parcourir...]
  Frame1: Valeurs des attributs
    ListView1: 0 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
    Label3: _
    Text1: ""
    Combo1: "Saisie manuel" (disabled)
      > 0 Saisie manuel
        1 Abscisse X Auto
        2 Ordonnée Y Auto
        3 Cote Z Auto
        4 Longueur Auto Monoclic
        5 Longueur Auto Polyclic
        6 Périmètre Auto Monoclic
        7 Périmètre Auto Polyclic
        ... and 5 more
    BtnAttFormat: [...] (disabled) (tip: Format de l'attribut)
  BtnParametre: [Paramètres] (disabled)
  BtnInserer: [Insérer] (disabled)
  OKButton: [Fermer]
> Combo2 = PORTE_90
(typed only; "Combo2 : PORTE_90" chooses the entry)
> show
  Label1: Nom du bloc à insérer :
  Combo2: "PORTE_90"
      0 *D2
      1 *D3
      2 *D4
      3 *U1
      4 _CLOSEDFILLED
      5 ARBRE
      6 BAIGNOIRE
      7 CANAPE
      8 CARTOUCHE
      9 CHAISE
      10 ENSEMBLE_REPAS
      11 ETIQUETTE_PIECE
      12 EVIER
      13 FENETRE_120
      14 LAVABO
      15 LIT_140
      16 NORD
      17 PORTE_80
    > 18 PORTE_90
      19 POTEAU
      20 TABLE_160
      21 WC
  BtnEtiquette: [Sélectionner...]
  BtnImport: [Parcourir...]
  Frame1: Valeurs des attributs
    ListView1: 4 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
      > 1 | Attribut 1 | CODE | ? | Saisie manuel
        2 | Attribut 2 | PASSAGE | 90 | Saisie manuel
        3 | Attribut 3 | COUPE_FEU | néant | Saisie manuel
        4 | Attribut 4 | HUISSERIE | bois | Saisie manuel
    Label3: Valeur de Attribut 1 :
    Text1: "?"
    Combo1: "Saisie manuel"
      > 0 Saisie manuel
        1 Abscisse X Auto
        2 Ordonnée Y Auto
        3 Cote Z Auto
        4 Longueur Auto Monoclic
        5 Longueur Auto Polyclic
        6 Périmètre Auto Monoclic
        7 Périmètre Auto Polyclic
        8 Aire Auto Monoclic
        9 Aire Auto Polyclic
        10 Incrément Auto
        11 Nom du Calque
        12 Couleur
    BtnAttFormat: [...] (disabled) (tip: Format de l'attribut)
  BtnParametre: [Paramètres]
  BtnInserer: [Insérer]
  OKButton: [Fermer]
> Combo1 = Aire Auto Monoclic
(typed only; "Combo1 : Aire Auto Monoclic" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Format de l'attribut
  Label1: Attribut 1 :
  LabelTag: CODE
  OKButton: [OK]
  Label2: Mode de détermination :
  LabelMode: Aire Auto Monoclic
  CancelButton: [Annuler]
  Frame1: Valeur
    Label4: Préfixe
    Text1: ""
    Label5: Suffixe
    Text2: ""
    Label6: Nombre de décimaux
    Combo1: "0"
      > 0 0
        1 0.0
        2 0.00
        3 0.000
        4 0.0000
        5 0.00000
        6 0.000000
        7 0.0000000
        ... and 2 more
> CancelButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Etiquetage (again)
; a counter has other fields
> Combo1 = Incrément Auto
(typed only; "Combo1 : Incrément Auto" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Format de l'attribut (again)
> show
  Label1: Attribut 1 :
  LabelTag: CODE
  OKButton: [OK]
  Label2: Mode de détermination :
  LabelMode: Incrément Auto
  CancelButton: [Annuler]
  Frame1: Valeur
    Label4: Préfixe
    Text1: ""
    Label5: Suffixe
    Text2: ""
    Label6: Valeur initiale
    Text3: ""
    Label7: Pas d'incrémentation
    Text4: ""
> CancelButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Etiquetage (again)
> BtnParametre
[fmLabels] hidden
[fmParamIns] Vorlane 1.0 : Paramètre d'insertion
  Frame1: Echelle
    Label1: Echelle longitudinale EX
    Text1: "1"
    Label2: Echelle transversale EY
    Text2: "1"
    Label3: Echelle verticale EZ
    Text3: "1"
  Frame2: Rotation
    CheckBox1: [ ] Spécifier à l'écran
    Label4: Angle de rotation (°)
    Text4: "0"
  Frame3: Ligne de repérage
    CheckBox2: [x] Tracer une ligne de repérage
    Option1: (o) A partir d'un nouveau point
    Option2: ( ) A partir du point de sélection monoclic
  OKButton: [OK]
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Etiquetage (again)
> OKButton
[fmLabels] hidden
Command: VNEXTRACT
[fmExtract] Vorlane 1.0 : Extraction des données des blocs
  Label0: Nom du bloc :
  Label1:
  Frame2: Données extraites
    ListView2: 0 rows
        #
  BtnNew: [Nouveau]
  BtnSave: [Enregistrer]
  BtnErase: [Effacer]
  BtnClose: [Fermer]
> BtnNew
[fmExtract] hidden
Sélectionner l'étiquette à détailler :@242
[fmVnMessage] Vorlane 1.0 : Message
  Label1: Vous avez selectionné le bloc 'ARBRE'
  BtnSelect: [Recommencer]
  OKButton: [Zone de reférence]
  CancelButton: [Annuler]
> CancelButton
[fmVnMessage] hidden
[fmExtract] Vorlane 1.0 : Extraction des données des blocs (again)
> BtnClose
[fmExtract] hidden
Command: VNINSERT
[fmReInsert] Vorlane 1.0 : Réinsertion des blocs
  Frame1: Attributs de ''
    ListView1: 10 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ |
        2 | Y_ |
        3 | Z_ |
        4 | Ech.X |
        5 | Ech.Y |
        6 | Ech.Z |
        7 | Rotation(rd) |
        8 | DeltaX |
        ... and 2 more
    LblVal: Valeur
    ComboBox1: ""
  Frame2: Données d'insertion : ''
    ListView2: 0 rows
        #
  Check1: [ ] Ajouter un trait de repérage (disabled)
  BtnData: [Données d'insertion]
  BtnInsert: [Insérer] (disabled)
  BtnClose: [Fermer]
  Label1: Nom du bloc
  Combo1: ""
      0 *D2
      1 *D3
      2 *D4
      3 *U1
      4 <<< Sélectionner
      5 _CLOSEDFILLED
      6 ARBRE
      7 BAIGNOIRE
      ... and 16 more
> BtnClose
[fmReInsert] hidden
Command: VNABOUT
[fmAbout] A propos de Vorlane 1.0
  Label1: Vorlane 1.0
  Label2: Copyright © 2026 Merovane
  BtnWeb: [Go Web]
  Label3: https://www.merovane.example
  Text1: "Vorlane gère les références de bloc d'un dessin : remplacement, étiquetage, extraction et réinsertion.\nLogiciel libre sous licence MIT, livré sans aucune garantie.\n\nVorlane manages the block references of a drawing: replacement, labelling, extraction and re-insertion.\nFree software under the MIT licence, without any warranty."
  Combo1: "Français"
      0 English
    > 1 Français
  Label6: Select language
  OKButton: [OK]
> OKButton
[fmAbout] hidden
