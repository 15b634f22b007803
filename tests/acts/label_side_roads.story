Opened apartment.dxf
; drawing: samples/apartment.dxf
; options: --regional fr --keep-going
; exit: 1
; language: fr
; check: result.dxf
; run: print_references.py result.dxf ETIQUETTE_PIECE
; run: print_references.py result.dxf POTEAU
; The list's habits: the fields lag one row behind the arrow keys, a text that is no block keeps the last one.
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
> ListView1 key DOWN
! Error 91: Object variable not set
> BtnEtiquette
[fmLabels] hidden
Sélectionner l'étiquette à insérer :@D0
[fmLabels] Vorlane 1.0 : Etiquetage (again)
> show
  Label1: Nom du bloc à insérer :
  Combo2: "ETIQUETTE_PIECE"
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
    > 11 ETIQUETTE_PIECE
      12 EVIER
      13 FENETRE_120
      14 LAVABO
      15 LIT_140
      16 NORD
      17 PORTE_80
      18 PORTE_90
      19 POTEAU
      20 TABLE_160
      21 WC
  BtnEtiquette: [Sélectionner...]
  BtnImport: [Parcourir...]
  Frame1: Valeurs des attributs
    ListView1: 3 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
      > 1 | Attribut 1 | NUMERO | 00 | Saisie manuel
        2 | Attribut 2 | NOM | Pièce | Saisie manuel
        3 | Attribut 3 | SURFACE | 0,00 m² | Saisie manuel
    Label3: Valeur de Attribut 1 :
    Text1: "00"
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
> ListView1 key DOWN
> show
  Label1: Nom du bloc à insérer :
  Combo2: "ETIQUETTE_PIECE"
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
    > 11 ETIQUETTE_PIECE
      12 EVIER
      13 FENETRE_120
      14 LAVABO
      15 LIT_140
      16 NORD
      17 PORTE_80
      18 PORTE_90
      19 POTEAU
      20 TABLE_160
      21 WC
  BtnEtiquette: [Sélectionner...]
  BtnImport: [Parcourir...]
  Frame1: Valeurs des attributs
    ListView1: 3 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
        1 | Attribut 1 | NUMERO | 00 | Saisie manuel
      > 2 | Attribut 2 | NOM | Pièce | Saisie manuel
        3 | Attribut 3 | SURFACE | 0,00 m² | Saisie manuel
    Label3: Valeur de Attribut 1 :
    Text1: "00"
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
> Text1 = Bureau
> ListView1 key DOWN
> ListView1 # 2
> show
  Label1: Nom du bloc à insérer :
  Combo2: "ETIQUETTE_PIECE"
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
    > 11 ETIQUETTE_PIECE
      12 EVIER
      13 FENETRE_120
      14 LAVABO
      15 LIT_140
      16 NORD
      17 PORTE_80
      18 PORTE_90
      19 POTEAU
      20 TABLE_160
      21 WC
  BtnEtiquette: [Sélectionner...]
  BtnImport: [Parcourir...]
  Frame1: Valeurs des attributs
    ListView1: 3 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
        1 | Attribut 1 | NUMERO | 00 | Saisie manuel
      > 2 | Attribut 2 | NOM | Bureau | Saisie manuel
        3 | Attribut 3 | SURFACE | 0,00 m² | Saisie manuel
    Label3: Valeur de Attribut 2 :
    Text1: "Bureau"
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
; a typed mode is none: the value is empty
> ListView1 # 3
> Combo1 = à la main
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Format de l'attribut
  Label1: Attribut 1 :
  LabelTag: SURFACE
  OKButton: [OK]
  Label2: Mode de détermination :
  LabelMode: à la main
  CancelButton: [Annuler]
  Frame1: Valeur
    Label4: Préfixe
    Text1: ""
    Label5: Suffixe
    Text2: ""
    Label6: Nombre de décimaux
    Combo1: ""
        0 0
        1 0.0
        2 0.00
        3 0.000
        4 0.0000
        5 0.00000
        6 0.000000
        7 0.0000000
        ... and 2 more
> Text1 = environ
> OKButton
! Error 9: Subscript out of range
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
> CheckBox2
> Text1 = 0,8
> Text2 = 0,8
> Text3 = 0,8
> Text4 = 30
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Etiquetage (again)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :1,-10
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Etiquetage (again)
; a broken-off pick leaves all as it is
> BtnEtiquette
[fmLabels] hidden
Sélectionner l'étiquette à insérer :esc
+-- Vorlane 1.0: Selection de bloc (!)
|  L'objet selectionné n'est pas un bloc.
+-- [ok] [cancel]
> cancel
[fmLabels] Vorlane 1.0 : Etiquetage (again)
; no block of that name: the rows go, and the last good block is inserted with its texts emptied
> Combo2 = ETIQUETTE
> show
  Label1: Nom du bloc à insérer :
  Combo2: "ETIQUETTE"
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
      18 PORTE_90
      19 POTEAU
      20 TABLE_160
      21 WC
  BtnEtiquette: [Sélectionner...]
  BtnImport: [Parcourir...]
  Frame1: Valeurs des attributs
    ListView1: 0 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
    Label3: Valeur de Attribut 3 :
    Text1: "0,00 m²" (disabled)
    Combo1: "à la main"
        0 Saisie manuel
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
    BtnAttFormat: [...] (tip: Format de l'attribut)
  BtnParametre: [Paramètres]
  BtnInserer: [Insérer]
  OKButton: [Fermer]
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :2,-10
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Etiquetage (again)
; a block without attributes of its own
> Combo2 = POTEAU
(typed only; "Combo2 : POTEAU" chooses the entry)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :3,-10
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Etiquetage (again)
> OKButton
[fmLabels] hidden
Command: SAVE result.dxf
Saved result.dxf
vorlane-console: line 10: ListView1 key DOWN: Error 91: Object variable not set
vorlane-console: line 25: OKButton: Error 9: Subscript out of range
-- check result.dxf
removed: none
added: 6 ATTRIB, 3 INSERT, 2 SEQEND
-- run print_references.py result.dxf ETIQUETTE_PIECE
Model: at 2.2,2.85,0 scale 1,1,1 rotation 0 layer ETIQUETTES NUMERO='A-01' NOM='Séjour' SURFACE='18,06 m²'
Model: at 6.2,3.2,0 scale 1,1,1 rotation 0 layer ETIQUETTES NUMERO='A-02' NOM='Cuisine' SURFACE='14,07 m²'
Model: at 4.3,5.1,0 scale 1,1,1 rotation 0 layer ETIQUETTES NUMERO='A-03' NOM='Entrée' SURFACE='10,08 m²'
Model: at 1.5,6.9,0 scale 1,1,1 rotation 0 layer ETIQUETTES NUMERO='A-04' NOM='Chambre 1' SURFACE='11,20 m²'
Model: at 4.2,7.1,0 scale 1,1,1 rotation 0 layer ETIQUETTES NUMERO='A-05' NOM='Chambre 2' SURFACE='9,20 m²'
Model: at 6.15,7.4,0 scale 0.38,0.38,0.38 rotation 0 layer ETIQUETTES NUMERO='A-06' NOM='Bains' SURFACE='5,60 m²'
Model: at 7.4,7.3,0 scale 0.38,0.38,0.38 rotation 0 layer ETIQUETTES NUMERO='A-07' NOM='WC' SURFACE='1,80 m²'
Model: at 7.4,8.6,0 scale 0.38,0.38,0.38 rotation 0 layer ETIQUETTES NUMERO='A-08' NOM='Rangement' SURFACE='1,90 m²'
Model: at 15.8,2.85,0 scale 1,1,1 rotation 0 layer ETIQUETTES NUMERO='B-01' NOM='Séjour' SURFACE='18,06 m²'
Model: at 11.8,3.2,0 scale 1,1,1 rotation 0 layer ETIQUETTES NUMERO='B-02' NOM='Cuisine' SURFACE='14,07 m²'
Model: at 13.7,5.1,0 scale 1,1,1 rotation 0 layer ETIQUETTES NUMERO='B-03' NOM='Entrée' SURFACE='10,08 m²'
Model: at 16.5,6.9,0 scale 1,1,1 rotation 0 layer ETIQUETTES NUMERO='B-04' NOM='Chambre 1' SURFACE='11,20 m²'
Model: at 13.8,7.1,0 scale 1,1,1 rotation 0 layer ETIQUETTES NUMERO='B-05' NOM='Chambre 2' SURFACE='9,20 m²'
Model: at 11.85,7.4,0 scale 0.38,0.38,0.38 rotation 0 layer ETIQUETTES NUMERO='B-06' NOM='Bains' SURFACE='5,60 m²'
Model: at 10.6,7.3,0 scale 0.38,0.38,0.38 rotation 0 layer ETIQUETTES NUMERO='B-07' NOM='WC' SURFACE='1,80 m²'
Model: at 10.6,8.6,0 scale 0.38,0.38,0.38 rotation 0 layer ETIQUETTES NUMERO='B-08' NOM='Rangement' SURFACE='1,90 m²'
Model: at 9,3.2,0 scale 0.8,0.8,0.8 rotation 0 layer ETIQUETTES NUMERO='C-01' NOM='Palier' SURFACE='17,46 m²'
Model: at 1,-10,0 scale 0.8,0.8,0.8 rotation 30 layer 0 NUMERO='00' NOM='Bureau' SURFACE='environ'
Model: at 2,-10,0 scale 0.8,0.8,0.8 rotation 30 layer 0 NUMERO='' NOM='' SURFACE='environ'
-- run print_references.py result.dxf POTEAU
Model: at 0.4,-2.7,0 scale 1,1,1 rotation 0 layer JARDIN
Model: at 3,-10,0 scale 1,1,1 rotation 0 layer 0
