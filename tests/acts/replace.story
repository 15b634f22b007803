Opened apartment.dxf
; drawing: samples/apartment.dxf | en | 1.5
; options: --regional en
; language: en
; check: result.dxf
; run: print_references.py result.dxf PORTE_90
; The whole job: choose, map attributes, override a scale, replace, save.
Command: LIST
References  Block
        16  PORTE_80
         3  PORTE_90
        10  FENETRE_120
         2  CHAISE
         0  TABLE_160
         2  ENSEMBLE_REPAS
         4  LIT_140
         2  CANAPE
         2  EVIER
         2  LAVABO
         2  BAIGNOIRE
         2  WC
         2  *U1
        17  ETIQUETTE_PIECE
         1  POTEAU
         1  NORD
         4  ARBRE
         1  CARTOUCHE
         0  _CLOSEDFILLED
and 3 without name or references (of dimensions and the like)
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
> show
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
        8 CHAISE
        9 ENSEMBLE_REPAS
        10 ETIQUETTE_PIECE
        11 EVIER
        12 FENETRE_120
        13 LAVABO
        14 LIT_140
        15 NORD
        16 PORTE_80
        17 PORTE_90
        18 POTEAU
        19 WC
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
        8 BAIGNOIRE
        9 CANAPE
        10 CARTOUCHE
        11 CHAISE
        12 ENSEMBLE_REPAS
        13 ETIQUETTE_PIECE
        14 EVIER
        15 FENETRE_120
        16 LAVABO
        17 LIT_140
        18 NORD
        19 PORTE_80
        20 PORTE_90
        21 POTEAU
        22 TABLE_160
        23 WC
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
> ListView1 # 1
> Combo2 = CODE
> ListView1 # 2
> Combo2 = PASSAGE
> ListView1 # 3
> Combo2 = COUPE_FEU
; a row shows what it is paired with
> ListView1 # 1
> show
  Frame1: Matching table
    ListView1: 3 rows
        # | Attribut dans le bloc source | Attribut dans le bloc de destination
      > 1 | REPERE | CODE
        2 | LARGEUR | PASSAGE
        3 | FEU | COUPE_FEU
  Combo2: "CODE"
    > 0 CODE
      1 COUPE_FEU
      2 HUISSERIE
      3 PASSAGE
  Label3: Attribute in the destination block:
  OKButton: [OK]
> OKButton
[fmAttSet] hidden
> chkZScale
> show
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 20 entries
        0 *D2
        1 *D3
        2 *D4
        3 *U1
        4 ARBRE
        5 BAIGNOIRE
        6 CANAPE
        7 CARTOUCHE
        8 CHAISE
        9 ENSEMBLE_REPAS
        10 ETIQUETTE_PIECE
        11 EVIER
        12 FENETRE_120
        13 LAVABO
        14 LIT_140
        15 NORD
      > 16 PORTE_80
        17 PORTE_90
        18 POTEAU
        19 WC
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: "PORTE_90"
        0 <<< Select
        1 Browse >>>
        2 *D2
        3 *D3
        4 *D4
        5 *U1
        6 _CLOSEDFILLED
        7 ARBRE
        8 BAIGNOIRE
        9 CANAPE
        10 CARTOUCHE
        11 CHAISE
        12 ENSEMBLE_REPAS
        13 ETIQUETTE_PIECE
        14 EVIER
        15 FENETRE_120
        16 LAVABO
        17 LIT_140
        18 NORD
        19 PORTE_80
      > 20 PORTE_90
        21 POTEAU
        22 TABLE_160
        23 WC
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
    chkZScale: [x] Z scale
    txtZScale: "1"
    ChkAttSet: [x] Transfer attribute values
    BtnAttSet: [Set up]
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 16
> txtZScale = 1.5
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
; the dialog stays as it was
> show
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 20 entries
        0 *D2
        1 *D3
        2 *D4
        3 *U1
        4 ARBRE
        5 BAIGNOIRE
        6 CANAPE
        7 CARTOUCHE
        8 CHAISE
        9 ENSEMBLE_REPAS
        10 ETIQUETTE_PIECE
        11 EVIER
        12 FENETRE_120
        13 LAVABO
        14 LIT_140
        15 NORD
      > 16 PORTE_80
        17 PORTE_90
        18 POTEAU
        19 WC
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: "PORTE_90"
        0 <<< Select
        1 Browse >>>
        2 *D2
        3 *D3
        4 *D4
        5 *U1
        6 _CLOSEDFILLED
        7 ARBRE
        8 BAIGNOIRE
        9 CANAPE
        10 CARTOUCHE
        11 CHAISE
        12 ENSEMBLE_REPAS
        13 ETIQUETTE_PIECE
        14 EVIER
        15 FENETRE_120
        16 LAVABO
        17 LIT_140
        18 NORD
        19 PORTE_80
      > 20 PORTE_90
        21 POTEAU
        22 TABLE_160
        23 WC
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
    chkZScale: [x] Z scale
    txtZScale: "1.5"
    ChkAttSet: [x] Transfer attribute values
    BtnAttSet: [Set up]
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 16
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         0  PORTE_80
        19  PORTE_90
        10  FENETRE_120
         2  CHAISE
         0  TABLE_160
         2  ENSEMBLE_REPAS
         4  LIT_140
         2  CANAPE
         2  EVIER
         2  LAVABO
         2  BAIGNOIRE
         2  WC
         2  *U1
        17  ETIQUETTE_PIECE
         1  POTEAU
         1  NORD
         4  ARBRE
         1  CARTOUCHE
         0  _CLOSEDFILLED
and 3 without name or references (of dimensions and the like)
Command: SAVE result.dxf
Saved result.dxf
; one command is one step back
Command: U
Undone.
Command: LIST
References  Block
        16  PORTE_80
         3  PORTE_90
        10  FENETRE_120
         2  CHAISE
         0  TABLE_160
         2  ENSEMBLE_REPAS
         4  LIT_140
         2  CANAPE
         2  EVIER
         2  LAVABO
         2  BAIGNOIRE
         2  WC
         2  *U1
        17  ETIQUETTE_PIECE
         1  POTEAU
         1  NORD
         4  ARBRE
         1  CARTOUCHE
         0  _CLOSEDFILLED
and 3 without name or references (of dimensions and the like)
The changes to result.dxf were not saved.
-- check result.dxf
removed: 48 ATTRIB, 16 INSERT, 16 SEQEND
added: 64 ATTRIB, 16 INSERT, 16 SEQEND
-- run print_references.py result.dxf PORTE_90
Model: at 8,5.55,0 scale 1,1,1 rotation -90 layer PORTES CODE='E-A01' PASSAGE='90' COUPE_FEU='1/2 h' HUISSERIE='métal'
Model: at 10,5.55,0 scale -1,1,1 rotation 90 layer PORTES CODE='E-B01' PASSAGE='90' COUPE_FEU='1/2 h' HUISSERIE='métal'
Model: at 8.55,0,0 scale 1,1,1 rotation 0 layer PORTES CODE='E-C01' PASSAGE='90' COUPE_FEU='1 h' HUISSERIE='métal'
Model: at 2.5,4.4,0 scale 1,-1,1.5 rotation 0 layer 0 CODE='P-A02' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 5.5,4.4,0 scale 1,-1,1.5 rotation 0 layer 0 CODE='P-A03' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 1.5,5.8,0 scale 1,1,1.5 rotation 0 layer 0 CODE='P-A04' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 4.5,5.8,0 scale 1,1,1.5 rotation 0 layer 0 CODE='P-A05' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 6.55,5.8,0 scale -1,1,1.5 rotation 0 layer 0 CODE='P-A06' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 7,5.8,0 scale 1,1,1.5 rotation 0 layer 0 CODE='P-A07' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 4.5,1.15,0 scale 1,1,1.5 rotation 90 layer 0 CODE='P-A08' PASSAGE='80' COUPE_FEU='1/2 h' HUISSERIE='bois'
Model: at 6.9,8.75,0 scale 1,1,1.5 rotation -90 layer 0 CODE='P-A09' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 15.5,4.4,0 scale -1,-1,1.5 rotation 0 layer 0 CODE='P-B02' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 12.5,4.4,0 scale -1,-1,1.5 rotation 0 layer 0 CODE='P-B03' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 16.5,5.8,0 scale -1,1,1.5 rotation 0 layer 0 CODE='P-B04' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 13.5,5.8,0 scale -1,1,1.5 rotation 0 layer 0 CODE='P-B05' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 11.45,5.8,0 scale 1,1,1.5 rotation 0 layer 0 CODE='P-B06' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 11,5.8,0 scale -1,1,1.5 rotation 0 layer 0 CODE='P-B07' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 13.5,1.15,0 scale -1,1,1.5 rotation -90 layer 0 CODE='P-B08' PASSAGE='80' COUPE_FEU='1/2 h' HUISSERIE='bois'
Model: at 11.1,8.75,0 scale -1,1,1.5 rotation 90 layer 0 CODE='P-B09' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Opened apartment.dxf
; drawing: samples/apartment.dxf | fr | 1,5
; options: --regional fr
; language: fr
; check: result.dxf
; run: print_references.py result.dxf PORTE_90
; The whole job: choose, map attributes, override a scale, replace, save.
Command: LIST
References  Block
        16  PORTE_80
         3  PORTE_90
        10  FENETRE_120
         2  CHAISE
         0  TABLE_160
         2  ENSEMBLE_REPAS
         4  LIT_140
         2  CANAPE
         2  EVIER
         2  LAVABO
         2  BAIGNOIRE
         2  WC
         2  *U1
        17  ETIQUETTE_PIECE
         1  POTEAU
         1  NORD
         4  ARBRE
         1  CARTOUCHE
         0  _CLOSEDFILLED
and 3 without name or references (of dimensions and the like)
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
> show
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
        8 CHAISE
        9 ENSEMBLE_REPAS
        10 ETIQUETTE_PIECE
        11 EVIER
        12 FENETRE_120
        13 LAVABO
        14 LIT_140
        15 NORD
        16 PORTE_80
        17 PORTE_90
        18 POTEAU
        19 WC
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
        8 BAIGNOIRE
        9 CANAPE
        10 CARTOUCHE
        11 CHAISE
        12 ENSEMBLE_REPAS
        13 ETIQUETTE_PIECE
        14 EVIER
        15 FENETRE_120
        16 LAVABO
        17 LIT_140
        18 NORD
        19 PORTE_80
        20 PORTE_90
        21 POTEAU
        22 TABLE_160
        23 WC
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
> ListView1 # 1
> Combo2 = CODE
> ListView1 # 2
> Combo2 = PASSAGE
> ListView1 # 3
> Combo2 = COUPE_FEU
; a row shows what it is paired with
> ListView1 # 1
> show
  Frame1: Tableau des correspondances
    ListView1: 3 rows
        # | Attribut dans le bloc source | Attribut dans le bloc de destination
      > 1 | REPERE | CODE
        2 | LARGEUR | PASSAGE
        3 | FEU | COUPE_FEU
  Combo2: "CODE"
    > 0 CODE
      1 COUPE_FEU
      2 HUISSERIE
      3 PASSAGE
  Label3: Attribut dans le bloc de destination :
  OKButton: [OK]
> OKButton
[fmAttSet] hidden
> chkZScale
> show
  Frame1: Blocs à remplacer
    Label3: Nom de bloc
    lstDestination: 20 entries
        0 *D2
        1 *D3
        2 *D4
        3 *U1
        4 ARBRE
        5 BAIGNOIRE
        6 CANAPE
        7 CARTOUCHE
        8 CHAISE
        9 ENSEMBLE_REPAS
        10 ETIQUETTE_PIECE
        11 EVIER
        12 FENETRE_120
        13 LAVABO
        14 LIT_140
        15 NORD
      > 16 PORTE_80
        17 PORTE_90
        18 POTEAU
        19 WC
    BtnSelectName: [Sélectionner]
    Label4: Zone de référence
    optZoneAll: (o) Tout le dessin
    BtnSelectZone: [Sélectionner] (disabled)
    optZoneSelection: ( ) Sélection
  Frame2: Bloc de remplacement
    Label5: Nom du bloc
    CboBlocReplacer: "PORTE_90"
        0 <<< Sélectionner
        1 Parcourir >>>
        2 *D2
        3 *D3
        4 *D4
        5 *U1
        6 _CLOSEDFILLED
        7 ARBRE
        8 BAIGNOIRE
        9 CANAPE
        10 CARTOUCHE
        11 CHAISE
        12 ENSEMBLE_REPAS
        13 ETIQUETTE_PIECE
        14 EVIER
        15 FENETRE_120
        16 LAVABO
        17 LIT_140
        18 NORD
        19 PORTE_80
      > 20 PORTE_90
        21 POTEAU
        22 TABLE_160
        23 WC
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
    chkZScale: [x] Echelle en Z
    txtZScale: "1"
    ChkAttSet: [x] Transcription de valeurs d'attributs
    BtnAttSet: [Parametrer]
  BtnReplace: [Remplacer]
  BtnClose: [Fermer]
  Label2: Nombre de blocs à remplacer :
  LblNbrSelected: 16
> txtZScale = 1,5
> BtnReplace
+-- Quillet 1.0 (i)
|  Remplacement de blocs effectué avec succès.
+-- [ok]
> ok
; the dialog stays as it was
> show
  Frame1: Blocs à remplacer
    Label3: Nom de bloc
    lstDestination: 20 entries
        0 *D2
        1 *D3
        2 *D4
        3 *U1
        4 ARBRE
        5 BAIGNOIRE
        6 CANAPE
        7 CARTOUCHE
        8 CHAISE
        9 ENSEMBLE_REPAS
        10 ETIQUETTE_PIECE
        11 EVIER
        12 FENETRE_120
        13 LAVABO
        14 LIT_140
        15 NORD
      > 16 PORTE_80
        17 PORTE_90
        18 POTEAU
        19 WC
    BtnSelectName: [Sélectionner]
    Label4: Zone de référence
    optZoneAll: (o) Tout le dessin
    BtnSelectZone: [Sélectionner] (disabled)
    optZoneSelection: ( ) Sélection
  Frame2: Bloc de remplacement
    Label5: Nom du bloc
    CboBlocReplacer: "PORTE_90"
        0 <<< Sélectionner
        1 Parcourir >>>
        2 *D2
        3 *D3
        4 *D4
        5 *U1
        6 _CLOSEDFILLED
        7 ARBRE
        8 BAIGNOIRE
        9 CANAPE
        10 CARTOUCHE
        11 CHAISE
        12 ENSEMBLE_REPAS
        13 ETIQUETTE_PIECE
        14 EVIER
        15 FENETRE_120
        16 LAVABO
        17 LIT_140
        18 NORD
        19 PORTE_80
      > 20 PORTE_90
        21 POTEAU
        22 TABLE_160
        23 WC
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
    chkZScale: [x] Echelle en Z
    txtZScale: "1,5"
    ChkAttSet: [x] Transcription de valeurs d'attributs
    BtnAttSet: [Parametrer]
  BtnReplace: [Remplacer]
  BtnClose: [Fermer]
  Label2: Nombre de blocs à remplacer :
  LblNbrSelected: 16
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         0  PORTE_80
        19  PORTE_90
        10  FENETRE_120
         2  CHAISE
         0  TABLE_160
         2  ENSEMBLE_REPAS
         4  LIT_140
         2  CANAPE
         2  EVIER
         2  LAVABO
         2  BAIGNOIRE
         2  WC
         2  *U1
        17  ETIQUETTE_PIECE
         1  POTEAU
         1  NORD
         4  ARBRE
         1  CARTOUCHE
         0  _CLOSEDFILLED
and 3 without name or references (of dimensions and the like)
Command: SAVE result.dxf
Saved result.dxf
; one command is one step back
Command: U
Undone.
Command: LIST
References  Block
        16  PORTE_80
         3  PORTE_90
        10  FENETRE_120
         2  CHAISE
         0  TABLE_160
         2  ENSEMBLE_REPAS
         4  LIT_140
         2  CANAPE
         2  EVIER
         2  LAVABO
         2  BAIGNOIRE
         2  WC
         2  *U1
        17  ETIQUETTE_PIECE
         1  POTEAU
         1  NORD
         4  ARBRE
         1  CARTOUCHE
         0  _CLOSEDFILLED
and 3 without name or references (of dimensions and the like)
The changes to result.dxf were not saved.
-- check result.dxf
removed: 48 ATTRIB, 16 INSERT, 16 SEQEND
added: 64 ATTRIB, 16 INSERT, 16 SEQEND
-- run print_references.py result.dxf PORTE_90
Model: at 8,5.55,0 scale 1,1,1 rotation -90 layer PORTES CODE='E-A01' PASSAGE='90' COUPE_FEU='1/2 h' HUISSERIE='métal'
Model: at 10,5.55,0 scale -1,1,1 rotation 90 layer PORTES CODE='E-B01' PASSAGE='90' COUPE_FEU='1/2 h' HUISSERIE='métal'
Model: at 8.55,0,0 scale 1,1,1 rotation 0 layer PORTES CODE='E-C01' PASSAGE='90' COUPE_FEU='1 h' HUISSERIE='métal'
Model: at 2.5,4.4,0 scale 1,-1,1.5 rotation 0 layer 0 CODE='P-A02' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 5.5,4.4,0 scale 1,-1,1.5 rotation 0 layer 0 CODE='P-A03' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 1.5,5.8,0 scale 1,1,1.5 rotation 0 layer 0 CODE='P-A04' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 4.5,5.8,0 scale 1,1,1.5 rotation 0 layer 0 CODE='P-A05' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 6.55,5.8,0 scale -1,1,1.5 rotation 0 layer 0 CODE='P-A06' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 7,5.8,0 scale 1,1,1.5 rotation 0 layer 0 CODE='P-A07' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 4.5,1.15,0 scale 1,1,1.5 rotation 90 layer 0 CODE='P-A08' PASSAGE='80' COUPE_FEU='1/2 h' HUISSERIE='bois'
Model: at 6.9,8.75,0 scale 1,1,1.5 rotation -90 layer 0 CODE='P-A09' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 15.5,4.4,0 scale -1,-1,1.5 rotation 0 layer 0 CODE='P-B02' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 12.5,4.4,0 scale -1,-1,1.5 rotation 0 layer 0 CODE='P-B03' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 16.5,5.8,0 scale -1,1,1.5 rotation 0 layer 0 CODE='P-B04' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 13.5,5.8,0 scale -1,1,1.5 rotation 0 layer 0 CODE='P-B05' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 11.45,5.8,0 scale 1,1,1.5 rotation 0 layer 0 CODE='P-B06' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 11,5.8,0 scale -1,1,1.5 rotation 0 layer 0 CODE='P-B07' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
Model: at 13.5,1.15,0 scale -1,1,1.5 rotation -90 layer 0 CODE='P-B08' PASSAGE='80' COUPE_FEU='1/2 h' HUISSERIE='bois'
Model: at 11.1,8.75,0 scale -1,1,1.5 rotation 90 layer 0 CODE='P-B09' PASSAGE='80' COUPE_FEU='' HUISSERIE='bois'
