<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="description" content="What this page is about, in one sentence">
<title>Enter_Title_Here</title>
<style>
body { max-width: 60em; margin: 0 auto; padding: 0 1em; font-family: sans-serif; line-height: 1.5; }
header, footer { padding: 1em 0; }
nav ul { display: flex; flex-wrap: wrap; gap: 1em; margin: 0; padding: 0; list-style: none; }
nav { padding: 0.5em 0; border-top: 1px solid; border-bottom: 1px solid; }
</style>
</head>
<body>
<header>
<h1>Name of the site</h1>
<p>What the site is about</p>
</header>
<nav>
<ul>
<li><a href="index.html">Home</a></li>
<li><a href="news.html">News</a></li>
<li><a href="contact.html">Contact</a></li>
</ul>
</nav>
<main>
<h2>Heading of the page</h2>
<p>The first paragraph.</p>
</main>
<footer>
<p>Name of the author, <time datetime="2026-01-01">1 January 2026</time></p>
</footer>
</body>
</html>
