<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Enter_Title_Here</title>
<style>
body { margin: 2em auto; max-width: 36em; padding: 0 1em; font-family: sans-serif; }
label { display: block; margin-top: 1em; }
input[type="text"], input[type="email"], select, textarea { width: 100%; }
fieldset { margin-top: 1em; }
fieldset label { margin-top: 0.3em; }
</style>
</head>
<body>
<h1>Write to us</h1>
<form action="send" method="post">
<label for="name">Your name</label>
<input type="text" id="name" name="name" required>
<label for="mail">Your e-mail address</label>
<input type="email" id="mail" name="mail" required>
<label for="subject">What it is about</label>
<select id="subject" name="subject">
<option value="question">A question</option>
<option value="praise">Praise</option>
<option value="fault">Something that does not work</option>
</select>
<fieldset>
<legend>How shall we answer?</legend>
<label><input type="radio" name="answer" value="mail" checked> By e-mail</label>
<label><input type="radio" name="answer" value="none"> Not at all</label>
</fieldset>
<label for="text">Your message</label>
<textarea id="text" name="text" rows="8" required></textarea>
<p><button type="submit">Send</button></p>
</form>
</body>
</html>
