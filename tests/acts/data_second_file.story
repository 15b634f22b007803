Opened template.dxf
; drawing: samples/template.dxf
; copy: samples/survey_points.txt
; before: head -n 4 survey_points.txt > first.txt && printf 'x\tOTHER\r\nN\tEAST\tNORTH\r\n1\t5\t6\t7\t1\t1\t1\t0\tA\r\n' > second.txt
; options: --regional en --keep-going
; exit: 1
; run: print_references.py result.dxf SURVEY_POINT
; The columns of the first file stay: the second file's column line is a row like others, and its text is no number. A
; cancel reads the last file once more, and a file that isn't there takes the rows away.
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
      0 <<< Select
      1 ARBRE
      2 Browse >>>
      3 ETIQUETTE_PIECE
      4 NORD
      5 POTEAU
      6 SURVEY_POINT
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file first.txt
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> Combo1 # 6
> ListView1 = NATURE
> ComboBox1 = X insertion
(typed only; "ComboBox1 : X insertion" chooses the entry)
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file second.txt
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> show
  Frame1: Attributs de 'SURVEY_POINT'
    ListView1: 13 rows
        # | Paramètre | Colonne-valeurs
        1 | X_ | X insertion
        2 | Y_ | Y insertion
        3 | Z_ | Z insertion
        4 | Ech.X | Ech. X
        5 | Ech.Y | Ech. Y
        6 | Ech.Z | Ech. Z
        7 | Rotation(rd) | Rotation
        8 | DeltaX | 0
        9 | DeltaY | 0
        10 | DeltaZ | 0
        11 | MATRICULE | MATRICULE
        12 | ALTITUDE | ALTITUDE
      > 13 | NATURE | X insertion
    LblVal: Value
    ComboBox1: "X insertion"
        0 N°
      > 1 X insertion
        2 Y insertion
        3 Z insertion
        4 Ech. X
        5 Ech. Y
        6 Ech. Z
        7 Rotation
        8 MATRICULE
        9 ALTITUDE
        10 NATURE
        11 Calque
        12 Couleur
  Frame2: Données d'insert° du bloc 'OTHER' : 'FOLDER/second.txt'
    ListView2: 2 rows
        # | N° | X insertion | Y insertion | Z insertion | Ech. X | Ech. Y | Ech. Z | Rotation | MATRICULE | ALTITUDE | NATURE | Calque | Couleur
      > 1 | N | EAST | NORTH | | | | | | | | | |
        2 | 1 | 5 | 6 | 7 | 1 | 1 | 1 | 0 | A | | | |
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert]
  BtnClose: [Close]
  Label1: Block name
  Combo1: "SURVEY_POINT"
      0 <<< Select
      1 ARBRE
      2 Browse >>>
      3 ETIQUETTE_PIECE
      4 NORD
      5 POTEAU
    > 6 SURVEY_POINT
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> cancel
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> BtnInsert
+-- Quillet 1.0 (!)
|  End of the insertion.
|  Error : The line 1 was not insered!
|  
+-- [ok]
> ok
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file nowhere.txt
! FOLDER/nowhere.txt isn't there or can't be read
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> show
  Frame1: Attributs de 'SURVEY_POINT'
    ListView1: 13 rows
        # | Paramètre | Colonne-valeurs
        1 | X_ | X insertion
        2 | Y_ | Y insertion
        3 | Z_ | Z insertion
        4 | Ech.X | Ech. X
        5 | Ech.Y | Ech. Y
        6 | Ech.Z | Ech. Z
        7 | Rotation(rd) | Rotation
        8 | DeltaX | 0
        9 | DeltaY | 0
        10 | DeltaZ | 0
        11 | MATRICULE | MATRICULE
        12 | ALTITUDE | ALTITUDE
      > 13 | NATURE | X insertion
    LblVal: Value
    ComboBox1: "X insertion"
        0 N°
      > 1 X insertion
        2 Y insertion
        3 Z insertion
        4 Ech. X
        5 Ech. Y
        6 Ech. Z
        7 Rotation
        8 MATRICULE
        9 ALTITUDE
        10 NATURE
        11 Calque
        12 Couleur
  Frame2: Données d'insert° du bloc 'OTHER' : 'FOLDER/second.txt'
    ListView2: 0 rows
        # | N° | X insertion | Y insertion | Z insertion | Ech. X | Ech. Y | Ech. Z | Rotation | MATRICULE | ALTITUDE | NATURE | Calque | Couleur
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert]
  BtnClose: [Close]
  Label1: Block name
  Combo1: "SURVEY_POINT"
      0 <<< Select
      1 ARBRE
      2 Browse >>>
      3 ETIQUETTE_PIECE
      4 NORD
      5 POTEAU
    > 6 SURVEY_POINT
> BtnClose
[fmReInsert] hidden
Command: SAVE result.dxf
Saved result.dxf
vorlane-console: line 21: ok: End of the insertion. Error : The line 1 was not insered!
vorlane-console: line 23: file nowhere.txt: FOLDER/nowhere.txt isn't there or can't be read
-- run print_references.py result.dxf SURVEY_POINT
Model: at 5,6,7 scale 1,1,1 rotation 0 layer 0 MATRICULE='A' ALTITUDE='' NATURE='5'
